#pragma once

#include "FakeCursorService.h"
#include "FakeDialogService.h"
#include "FakeMessageService.h"
#include "FakePickerService.h"
#include "FakeShellService.h"
#include "FakeTimerService.h"
#include "FakeTipService.h"
#include "foundation/ScopedService.h"

#include <memory>

namespace sv::test {

// Installs a fake of every service for the lifetime of the object, then restores the previous
// ones. A test reaches each fake by its member.
class FakeServices {
 public:
  std::shared_ptr<FakeMessageService> message = std::make_shared<FakeMessageService>();
  std::shared_ptr<FakeDialogService> dialog = std::make_shared<FakeDialogService>();
  std::shared_ptr<FakeShellService> shell = std::make_shared<FakeShellService>();
  std::shared_ptr<FakePickerService> picker = std::make_shared<FakePickerService>();
  std::shared_ptr<FakeTipService> tip = std::make_shared<FakeTipService>();
  std::shared_ptr<FakeCursorService> cursor = std::make_shared<FakeCursorService>();
  std::shared_ptr<FakeTimerService> timer = std::make_shared<FakeTimerService>();

 private:
  ScopedService mMessage{message};
  ScopedService mDialog{dialog};
  ScopedService mShell{shell};
  ScopedService mPicker{picker};
  ScopedService mTip{tip};
  ScopedService mCursor{cursor};
  ScopedService mTimer{timer};
};

}  // namespace sv::test
