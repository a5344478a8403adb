#include "FakeCursorService.h"

namespace sv::test {

void FakeCursorService::SetWaitCursor(bool on) {
  mWait = on;
  mChanges += on ? u'1' : u'0';
}

}  // namespace sv::test
