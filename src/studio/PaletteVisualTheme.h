#pragma once

#include "ui/VisualTheme.h"

namespace sv {

// The desktop theme as the application palette: item panes of the explorer bar take the
// alternate base colour and the text colour; any other class answers its button colours.
class PaletteVisualTheme : public IVisualTheme {
 public:
  // The property numbers callers ask for.
  static constexpr int FillColor = 3802;
  static constexpr int TextColor = 3803;

  bool IsActive() const override { return true; }
  std::optional<quint32> Color(const QString& themeClass, int part, int state,
                               int property) const override;
};

}  // namespace sv
