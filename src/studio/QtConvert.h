#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QtGlobal>

// Conversions between the widget set's plain values and Qt's drawing and input types.
namespace sv::QtConvert {

// 0xRRGGBB, or a system colour (SystemColors.h) resolved through the application palette.
QColor ToQColor(quint32 colour);
// A font description such as "Tahoma, 8" or "Segoe UI, 9, bold"; the size is in points.
QFont ToQFont(const QString& description);
// The widget set's key code for a Qt key, or 0 for a key it has no code for.
int ToKeyCode(int qtKey);
// ShiftMask bits for Qt's modifiers.
int ToShiftMask(Qt::KeyboardModifiers modifiers);

}  // namespace sv::QtConvert
