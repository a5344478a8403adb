#include "ui/TextMeasure.h"

#include <QStringList>
#include <algorithm>
#include <utility>

namespace sv {

namespace {

double pointSize(const QString& font) {
  bool ok = false;
  const double size = font.section(QLatin1Char(','), 1, 1).trimmed().toDouble(&ok);
  return ok && size > 0 ? size : 8.0;
}

class EstimatingMeasurer : public ITextMeasurer {
 public:
  int TextWidth(const QString& text, const QString& font) const override {
    const int glyph = std::max(1, static_cast<int>(pointSize(font) * 0.625 + 0.5));
    return static_cast<int>(text.size()) * glyph;
  }
  int LineHeight(const QString& font) const override {
    return static_cast<int>(pointSize(font) * 1.625 + 0.5);
  }
};

std::shared_ptr<ITextMeasurer>& installed() {
  static std::shared_ptr<ITextMeasurer> measurer;
  return measurer;
}

const ITextMeasurer& measurer() {
  static const EstimatingMeasurer estimate;
  const auto& current = installed();
  return current ? *current : static_cast<const ITextMeasurer&>(estimate);
}

}  // namespace

std::shared_ptr<ITextMeasurer> SetTextMeasurer(std::shared_ptr<ITextMeasurer> measurer) {
  return std::exchange(installed(), std::move(measurer));
}

int TextWidth(const QString& text, const QString& font) {
  return measurer().TextWidth(text, font);
}

int LineHeight(const QString& font) {
  return measurer().LineHeight(font);
}

QString FitText(const QString& text, int width, const QString& font) {
  if (TextWidth(text, font) <= width) return text;
  const QString ellipsis = QStringLiteral("...");
  // The longest head that still fits with the ellipsis: widths grow with length.
  qsizetype low = 0;
  qsizetype high = text.size();
  while (low < high) {
    const qsizetype mid = (low + high + 1) / 2;
    if (TextWidth(text.left(mid) + ellipsis, font) <= width)
      low = mid;
    else
      high = mid - 1;
  }
  return text.left(low) + ellipsis;
}

}  // namespace sv
