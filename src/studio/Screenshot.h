#pragma once

#include <QString>

class QWidget;

namespace sv {

// Draws a window at a fixed size, as it would appear on screen, into a PNG file. Works on the
// offscreen platform, so that documentation pictures need no display.
class Screenshot {
 public:
  static constexpr int Width = 1280;
  static constexpr int Height = 800;

  // Answers an empty string, or why the picture could not be written.
  static QString Take(QWidget& window, const QString& fileName);
};

}  // namespace sv
