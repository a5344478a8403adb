#include "ui/RedrawSwitch.h"

#include "model/Error.h"

namespace sv {

void RedrawSwitch::setRedraw(bool value) {
  if (mRedraw == value) return;
  mRedraw = value;
  if (mChanged) mChanged(value);
}

void RedrawSwitch::Lock() {
  if (mLockCount++ == 0) setRedraw(false);
}

void RedrawSwitch::Unlock() {
  if (mLockCount == 0)
    Raise(ErrorNumber::InvalidCall, QStringLiteral("Redraw unlocked more often than locked"));
  if (--mLockCount == 0) setRedraw(true);
}

}  // namespace sv
