#include "widgets/CorvaCheckbox.h"

#include "foundation/DumpValue.h"
#include "foundation/ErrorTrap.h"
#include "model/Error.h"
#include "ui/Keys.h"
#include "ui/VisualTheme.h"

namespace sv {

CorvaCheckbox::CorvaCheckbox(QObject* parent) : QObject(parent) {}

QString CorvaCheckbox::DumpMembers() const {
  return DumpValues({{"mfont", mfont},
                     {"mtracking", mtracking},
                     {"mtheme", mtheme},
                     {"mvalue", mvalue},
                     {"menabled", menabled},
                     {"mfocused", mfocused},
                     {"mhot", mhot},
                     {"mpressed", mpressed},
                     {"mcaption", mcaption},
                     {"mforecolor", mforecolor},
                     {"mbackcolor", mbackcolor}});
}

void CorvaCheckbox::Refresh() {
  Trap(this, "Refresh", [&] {
    mtheme = VisualThemeActive();
    ++mRedrawCount;
    emit Redrawn();
  });
}

void CorvaCheckbox::setEnabled(bool value) {
  Trap(this, "Enabled",
       [&] {
         menabled = value;
         Refresh();
       },
       {{"Value", value}});
}

void CorvaCheckbox::setFont(const QString& value) {
  Trap(this, "Font",
       [&] {
         mfont = value;
         Refresh();
       },
       {{"Value", value}});
}

void CorvaCheckbox::setValue(int value) {
  Trap(this, "Value",
       [&] {
         if (value != 0 && value != 1)
           Raise(ErrorNumber::InvalidCall, QStringLiteral("Invalid property value"));
         mvalue = value;
         Refresh();
       },
       {{"Value", value}});
}

void CorvaCheckbox::setBackColor(quint32 value) {
  Trap(this, "BackColor",
       [&] {
         mbackcolor = value;
         Refresh();
       },
       {{"Value", value}});
}

void CorvaCheckbox::setForeColor(quint32 value) {
  Trap(this, "ForeColor",
       [&] {
         mforecolor = value;
         Refresh();
       },
       {{"Value", value}});
}

void CorvaCheckbox::setCaption(const QString& value) {
  Trap(this, "Caption",
       [&] {
         mcaption = value;
         Refresh();
       },
       {{"Value", value}});
}

void CorvaCheckbox::RaiseClick() {
  Trap(this, "RaiseClick", [&] {
    setValue(mvalue == 1 ? 0 : 1);
    emit Click();
  });
}

void CorvaCheckbox::UserControl_Click() {
  Trap(this, "UserControl_Click", [&] { RaiseClick(); });
}

void CorvaCheckbox::UserControl_KeyUp(int keyCode, int shift) {
  Trap(this, "UserControl_KeyUp",
       [&] {
         if (keyCode == KeyCode::Space) RaiseClick();
       },
       {{"KeyCode", keyCode}, {"Shift", shift}});
}

void CorvaCheckbox::UserControl_MouseDown() {
  Trap(this, "UserControl_MouseDown", [&] {
    if (!mfocused) mfocused = true;
    mpressed = true;
    Refresh();
  });
}

void CorvaCheckbox::UserControl_MouseUp() {
  Trap(this, "UserControl_MouseUp", [&] {
    mpressed = false;
    Refresh();
  });
}

void CorvaCheckbox::UserControl_EnterFocus() {
  Trap(this, "UserControl_EnterFocus", [&] {
    mfocused = true;
    Refresh();
  });
}

void CorvaCheckbox::UserControl_ExitFocus() {
  Trap(this, "UserControl_ExitFocus", [&] {
    mfocused = false;
    Refresh();
  });
}

void CorvaCheckbox::mtracking_Hover() {
  Trap(this, "mtracking_Hover", [&] {
    if (mhot) return;
    mhot = true;
    Refresh();
  });
}

void CorvaCheckbox::mtracking_Leave() {
  Trap(this, "mtracking_Leave", [&] {
    mtracking = false;
    if (!mhot) return;
    mhot = false;
    Refresh();
  });
}

void CorvaCheckbox::userMouseDown() {
  if (menabled) UserControl_MouseDown();
}

void CorvaCheckbox::userMouseUp() {
  if (menabled) UserControl_MouseUp();
}

void CorvaCheckbox::userClick() {
  if (!menabled) return;
  UserControl_MouseDown();
  UserControl_MouseUp();
  UserControl_Click();
}

void CorvaCheckbox::userPressKey(int keyCode, int shift) {
  if (menabled) UserControl_KeyUp(keyCode, shift);
}

void CorvaCheckbox::userHover() {
  if (!menabled) return;
  mtracking = true;
  mtracking_Hover();
}

void CorvaCheckbox::userLeave() {
  mtracking_Leave();
}

void CorvaCheckbox::userFocusIn() {
  if (menabled) UserControl_EnterFocus();
}

void CorvaCheckbox::userFocusOut() {
  UserControl_ExitFocus();
}

}  // namespace sv
