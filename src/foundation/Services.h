#pragma once

#include "foundation/CursorService.h"
#include "foundation/DialogService.h"
#include "foundation/MessageService.h"
#include "foundation/PickerService.h"
#include "foundation/ShellService.h"
#include "foundation/TimerService.h"
#include "foundation/TipService.h"

#include <memory>

namespace sv {

// The process-wide services. The host installs its own; until then each answers with a
// harmless default (boxes go to stderr and answer their default button, pickers cancel, the
// shell opens nothing). Install answers the service it replaced (null for the default);
// installing null restores the default.
class Services {
 public:
  static IMessageService& Message();
  static IDialogService& Dialog();
  static IShellService& Shell();
  static IPickerService& Picker();
  static ITipService& Tip();
  static ICursorService& Cursor();
  static ITimerService& Timer();

  static std::shared_ptr<IMessageService> Install(std::shared_ptr<IMessageService> service);
  static std::shared_ptr<IDialogService> Install(std::shared_ptr<IDialogService> service);
  static std::shared_ptr<IShellService> Install(std::shared_ptr<IShellService> service);
  static std::shared_ptr<IPickerService> Install(std::shared_ptr<IPickerService> service);
  static std::shared_ptr<ITipService> Install(std::shared_ptr<ITipService> service);
  static std::shared_ptr<ICursorService> Install(std::shared_ptr<ICursorService> service);
  static std::shared_ptr<ITimerService> Install(std::shared_ptr<ITimerService> service);
};

}  // namespace sv
