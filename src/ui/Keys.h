#pragma once

// Key codes and the shift mask that keyboard events carry, with the values hosts and
// components compare against.
namespace sv {

namespace KeyCode {
inline constexpr int Back = 8;
inline constexpr int Tab = 9;
inline constexpr int Return = 13;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
inline constexpr int F2 = 113;
}  // namespace KeyCode

namespace ShiftMask {
inline constexpr int Shift = 1;
inline constexpr int Ctrl = 2;
inline constexpr int Alt = 4;
}  // namespace ShiftMask

// The character a key press types, or 0 for a key that types none: letters (lower case unless
// Shift), digits, space, Return, Escape and Backspace; Ctrl with a letter gives its control code.
int KeyAscii(int keyCode, int shift);

}  // namespace sv
