#include "ui/VisualTheme.h"

#include <utility>

namespace sv {

namespace {

std::shared_ptr<IVisualTheme>& installed() {
  static std::shared_ptr<IVisualTheme> theme;
  return theme;
}

}  // namespace

std::shared_ptr<IVisualTheme> SetVisualTheme(std::shared_ptr<IVisualTheme> theme) {
  return std::exchange(installed(), std::move(theme));
}

bool VisualThemeActive() {
  return installed() && installed()->IsActive();
}

std::optional<quint32> VisualThemeColor(const QString& themeClass, int part, int state,
                                        int property) {
  if (!VisualThemeActive()) return std::nullopt;
  return installed()->Color(themeClass, part, state, property);
}

}  // namespace sv
