#include "ui/Keys.h"

namespace sv {

int KeyAscii(int keyCode, int shift) {
  const bool letter = keyCode >= 'A' && keyCode <= 'Z';
  if (letter && (shift & ShiftMask::Ctrl)) return keyCode - 'A' + 1;
  if (shift & (ShiftMask::Ctrl | ShiftMask::Alt)) return 0;
  if (letter) return (shift & ShiftMask::Shift) ? keyCode : keyCode + ('a' - 'A');
  if (keyCode >= '0' && keyCode <= '9') return keyCode;
  switch (keyCode) {
    case KeyCode::Space:
    case KeyCode::Return:
    case KeyCode::Escape:
    case KeyCode::Back:
      return keyCode;
    default:
      return 0;
  }
}

}  // namespace sv
