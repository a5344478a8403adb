#pragma once

#include "ui/TextMeasure.h"

namespace sv {

// Measures text with the real font through QFontMetrics.
class QtTextMeasurer : public ITextMeasurer {
 public:
  int TextWidth(const QString& text, const QString& font) const override;
  int LineHeight(const QString& font) const override;
};

}  // namespace sv
