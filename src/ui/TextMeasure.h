#pragma once

#include <QString>
#include <memory>

namespace sv {

// Measures text as it will be drawn. Fonts are descriptions such as "Tahoma, 8" (name, points).
class ITextMeasurer {
 public:
  virtual ~ITextMeasurer() = default;
  // The width of one line of text, in pixels.
  virtual int TextWidth(const QString& text, const QString& font) const = 0;
  // The height of one line, in pixels.
  virtual int LineHeight(const QString& font) const = 0;
};

// The studio installs a measurer that asks the real font; until then every character counts as
// an average glyph of the font's size, which keeps layout code testable without a display.
// Answers the measurer it replaced; null restores the estimate.
std::shared_ptr<ITextMeasurer> SetTextMeasurer(std::shared_ptr<ITextMeasurer> measurer);
int TextWidth(const QString& text, const QString& font);
int LineHeight(const QString& font);
// The text, cut at the end and marked with "..." so that it fits `width` pixels, the way a
// label with an end ellipsis draws it. Text that fits comes back unchanged; with no room at
// all only the ellipsis is left.
QString FitText(const QString& text, int width, const QString& font);

}  // namespace sv
