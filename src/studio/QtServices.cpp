#include "studio/QtServices.h"

#include "foundation/Services.h"
#include "foundation/SystemTimerService.h"
#include "studio/PaletteVisualTheme.h"
#include "studio/QtCursorService.h"
#include "studio/QtMessageService.h"
#include "studio/QtPickerService.h"
#include "studio/QtShellService.h"
#include "studio/QtTextMeasurer.h"
#include "ui/TextMeasure.h"
#include "ui/VisualTheme.h"

namespace sv {

namespace {

template <class S>
std::function<void()> install(std::shared_ptr<S> service) {
  auto previous = Services::Install(std::move(service));
  return [previous] { Services::Install(previous); };
}

}  // namespace

QtServices::QtServices()
    : mDialog(std::make_shared<QtDialogService>()), mTip(std::make_shared<QtTipService>()) {
  mRestore.push_back(install<IMessageService>(std::make_shared<QtMessageService>()));
  mRestore.push_back(install<IDialogService>(mDialog));
  mRestore.push_back(install<IPickerService>(std::make_shared<QtPickerService>()));
  mRestore.push_back(install<IShellService>(std::make_shared<QtShellService>()));
  mRestore.push_back(install<ICursorService>(std::make_shared<QtCursorService>()));
  mRestore.push_back(install<ITipService>(mTip));
  // The foundation's timers already run on Qt's event loop.
  mRestore.push_back(install<ITimerService>(std::make_shared<SystemTimerService>()));
  auto measurer = SetTextMeasurer(std::make_shared<QtTextMeasurer>());
  mRestore.push_back([measurer] { SetTextMeasurer(measurer); });
  auto theme = SetVisualTheme(std::make_shared<PaletteVisualTheme>());
  mRestore.push_back([theme] { SetVisualTheme(theme); });
}

QtServices::~QtServices() {
  for (auto it = mRestore.rbegin(); it != mRestore.rend(); ++it) (*it)();
}

std::unique_ptr<QtServices> InstallQtServices() {
  return std::make_unique<QtServices>();
}

}  // namespace sv
