#include "studio/PaletteVisualTheme.h"

#include <QGuiApplication>
#include <QPalette>

namespace sv {

namespace {

quint32 rgbOf(QPalette::ColorRole role) {
  return QGuiApplication::palette().color(QPalette::Active, role).rgb() & 0xFFFFFFu;
}

}  // namespace

std::optional<quint32> PaletteVisualTheme::Color(const QString& themeClass, int, int,
                                                 int property) const {
  const bool explorerBar =
      themeClass.compare(QStringLiteral("EXPLORERBAR"), Qt::CaseInsensitive) == 0;
  if (property == FillColor) return rgbOf(explorerBar ? QPalette::AlternateBase : QPalette::Button);
  if (property == TextColor) return rgbOf(explorerBar ? QPalette::Text : QPalette::ButtonText);
  return std::nullopt;
}

}  // namespace sv
