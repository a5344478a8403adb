#include "studio/QtConvert.h"

#include <QGuiApplication>
#include <QPalette>

#include "ui/Keys.h"
#include "ui/SystemColors.h"

namespace sv::QtConvert {

namespace {

QPalette::ColorRole roleFor(quint32 colour, QPalette::ColorGroup* group) {
  *group = QPalette::Active;
  switch (colour) {
    case SystemColor::ButtonFace:
      return QPalette::Button;
    case SystemColor::ButtonText:
      return QPalette::ButtonText;
    case SystemColor::GrayText:
      *group = QPalette::Disabled;
      return QPalette::Text;
    case SystemColor::Window:
      return QPalette::Base;
    case SystemColor::InfoBackground:
      return QPalette::ToolTipBase;
    case SystemColor::InfoText:
      return QPalette::ToolTipText;
    default:
      return QPalette::WindowText;
  }
}

}  // namespace

QColor ToQColor(quint32 colour) {
  if (!SystemColor::IsSystemColor(colour))
    return QColor((colour >> 16) & 0xFF, (colour >> 8) & 0xFF, colour & 0xFF);
  QPalette::ColorGroup group;
  const QPalette::ColorRole role = roleFor(colour, &group);
  return QGuiApplication::palette().color(group, role);
}

QFont ToQFont(const QString& description) {
  const QStringList parts = description.split(QLatin1Char(','));
  QFont font(parts.value(0).trimmed());
  bool ok = false;
  const double points = parts.value(1).trimmed().toDouble(&ok);
  font.setPointSizeF(ok && points > 0 ? points : 8.0);
  for (qsizetype i = 2; i < parts.size(); ++i) {
    const QString style = parts[i].trimmed().toLower();
    if (style == QStringLiteral("bold")) font.setBold(true);
    if (style == QStringLiteral("italic")) font.setItalic(true);
    if (style == QStringLiteral("underline")) font.setUnderline(true);
  }
  return font;
}

int ToKeyCode(int qtKey) {
  if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return 'A' + (qtKey - Qt::Key_A);
  if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return '0' + (qtKey - Qt::Key_0);
  if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F12) return 112 + (qtKey - Qt::Key_F1);
  switch (qtKey) {
    case Qt::Key_Backspace:
      return KeyCode::Back;
    case Qt::Key_Tab:
      return KeyCode::Tab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return KeyCode::Return;
    case Qt::Key_Escape:
      return KeyCode::Escape;
    case Qt::Key_Space:
      return KeyCode::Space;
    case Qt::Key_Left:
      return KeyCode::Left;
    case Qt::Key_Up:
      return KeyCode::Up;
    case Qt::Key_Right:
      return KeyCode::Right;
    case Qt::Key_Down:
      return KeyCode::Down;
    case Qt::Key_Delete:
      return KeyCode::Delete;
    default:
      return 0;
  }
}

int ToShiftMask(Qt::KeyboardModifiers modifiers) {
  int mask = 0;
  if (modifiers & Qt::ShiftModifier) mask |= ShiftMask::Shift;
  if (modifiers & Qt::ControlModifier) mask |= ShiftMask::Ctrl;
  if (modifiers & Qt::AltModifier) mask |= ShiftMask::Alt;
  return mask;
}

}  // namespace sv::QtConvert
