#include "studio/QtTextMeasurer.h"

#include <QFontMetrics>

#include "studio/QtConvert.h"

namespace sv {

int QtTextMeasurer::TextWidth(const QString& text, const QString& font) const {
  return QFontMetrics(QtConvert::ToQFont(font)).horizontalAdvance(text);
}

int QtTextMeasurer::LineHeight(const QString& font) const {
  return QFontMetrics(QtConvert::ToQFont(font)).height();
}

}  // namespace sv
