#pragma once

#include <QtGlobal>

// Colours that follow the desktop: a value with the high bit set names a system colour by its
// index instead of giving red, green and blue. Renderers resolve them when drawing.
namespace sv::SystemColor {

inline constexpr quint32 ButtonFace = 0x8000000F;
inline constexpr quint32 ButtonText = 0x80000012;
inline constexpr quint32 GrayText = 0x80000011;
inline constexpr quint32 Window = 0x80000005;
inline constexpr quint32 WindowText = 0x80000008;
inline constexpr quint32 InfoBackground = 0x80000018;
inline constexpr quint32 InfoText = 0x80000017;

inline constexpr bool IsSystemColor(quint32 colour) {
  return (colour & 0x80000000u) != 0;
}

}  // namespace sv::SystemColor
