#pragma once

#include <QObject>
#include <QString>

#include "foundation/Dumpable.h"
#include "ui/SystemColors.h"

namespace sv {

// A check box that draws itself, so that it follows the desktop theme on any background and
// shows hover and press states on a transparent panel. This object holds the state and decides
// when to redraw; the studio's renderer paints it on each Redrawn.
//
// Unlike the stock check box, writing Value from code raises no Click: Click comes from a
// person's click or Space, through RaiseClick.
class CorvaCheckbox : public QObject, public Dumpable {
  Q_OBJECT

 public:
  explicit CorvaCheckbox(QObject* parent = nullptr);

  QString ModuleName() const override { return QStringLiteral("CorvaCheckbox"); }
  QString DumpMembers() const override;

  // Every property write redraws, whether or not the value changed.
  bool Enabled() const { return menabled; }
  void setEnabled(bool value);
  // A font description such as "Tahoma, 8".
  const QString& Font() const { return mfont; }
  void setFont(const QString& value);
  // 0 clear, 1 ticked; anything else is refused.
  int Value() const { return mvalue; }
  void setValue(int value);
  quint32 BackColor() const { return mbackcolor; }
  void setBackColor(quint32 value);
  quint32 ForeColor() const { return mforecolor; }
  void setForeColor(quint32 value);
  const QString& Caption() const { return mcaption; }
  void setCaption(const QString& value);

  // The look the renderer draws.
  bool Hot() const { return mhot; }
  bool Pressed() const { return mpressed; }
  bool Focused() const { return mfocused; }
  // Whether the last redraw used the theme.
  bool Themed() const { return mtheme; }

  // Redraws the box from the state.
  void Refresh();
  int RedrawCount() const { return mRedrawCount; }
  // Flips the value, then raises Click.
  void RaiseClick();

  // What a person does; a disabled box takes no input, though leaving it and losing the focus
  // still clear its look. A click is the mouse pressed and
  // released on the box, then the click itself.
  void userMouseDown();
  void userMouseUp();
  void userClick();
  // Space raises a click on key-up, as the stock box does.
  void userPressKey(int keyCode, int shift = 0);
  void userHover();
  void userLeave();
  void userFocusIn();
  void userFocusOut();

 signals:
  void Click();
  void Redrawn();

 private:
  void UserControl_Click();
  void UserControl_KeyUp(int keyCode, int shift);
  void UserControl_MouseDown();
  void UserControl_MouseUp();
  void UserControl_EnterFocus();
  void UserControl_ExitFocus();
  void mtracking_Hover();
  void mtracking_Leave();

  QString mfont = QStringLiteral("Tahoma, 8");
  bool mtracking = false;  // hover notices are armed: the mouse is over the box
  bool mtheme = false;
  int mvalue = 0;
  bool menabled = true;
  bool mfocused = false;
  bool mhot = false;
  bool mpressed = false;
  QString mcaption;
  quint32 mforecolor = SystemColor::ButtonText;
  quint32 mbackcolor = SystemColor::ButtonFace;
  int mRedrawCount = 0;
};

}  // namespace sv
