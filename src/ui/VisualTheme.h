#pragma once

#include <QString>
#include <memory>
#include <optional>

namespace sv {

// The desktop's visual theme, as far as controls that draw themselves need it: whether one is
// active and the colours of its parts. The studio installs one; without it no theme is active.
class IVisualTheme {
 public:
  virtual ~IVisualTheme() = default;
  virtual bool IsActive() const = 0;
  // A colour property of a part of a theme class (such as "EXPLORERBAR"), or none when the
  // theme does not define it.
  virtual std::optional<quint32> Color(const QString& themeClass, int part, int state,
                                       int property) const = 0;
};

// Answers the theme it replaced; null removes the theme.
std::shared_ptr<IVisualTheme> SetVisualTheme(std::shared_ptr<IVisualTheme> theme);
bool VisualThemeActive();
// None when no theme is active or the theme lacks the colour.
std::optional<quint32> VisualThemeColor(const QString& themeClass, int part, int state,
                                        int property);

}  // namespace sv
