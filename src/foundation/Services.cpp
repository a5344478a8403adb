#include "foundation/Services.h"

#include "foundation/ConsoleMessageService.h"
#include "foundation/SystemTimerService.h"

namespace sv {

IMessageService::~IMessageService() = default;
IDialogService::~IDialogService() = default;
IShellService::~IShellService() = default;
IPickerService::~IPickerService() = default;
ITipService::~ITipService() = default;
ICursorService::~ICursorService() = default;
ITimerService::~ITimerService() = default;

namespace {

// Without a host nothing can be shown modally: the form keeps its state as it is.
class NoDialogService : public IDialogService {
 public:
  void ShowModal(QObject*, QObject*) override {}
};

class NoShellService : public IShellService {
 public:
  bool Open(const QString&) override { return false; }
};

class CancellingPickerService : public IPickerService {
 public:
  QString PickFolder(const QString&, const QString&, QObject*) override { return {}; }
  QString PickOpenFile(const QString&, const QString&, const QString&, QObject*) override {
    return {};
  }
  QString PickSaveFile(const QString&, const QString&, const QString&, QObject*) override {
    return {};
  }
};

class NoTipService : public ITipService {
 public:
  void ShowTip(const QString&, QObject*) override {}
  void HideTip() override {}
  bool TipSeen(const QString&) const override { return false; }
};

class StateCursorService : public ICursorService {
 public:
  void SetWaitCursor(bool on) override { mWait = on; }
  bool IsWaitCursor() const override { return mWait; }

 private:
  bool mWait = false;
};

// One installed service of one interface, with its default made on first use.
template <class I, class Default>
class Slot {
 public:
  I& Get() {
    if (mInstalled) return *mInstalled;
    if (!mDefault) mDefault = std::make_shared<Default>();
    return *mDefault;
  }
  std::shared_ptr<I> Replace(std::shared_ptr<I> service) {
    std::swap(mInstalled, service);
    return service;
  }

 private:
  std::shared_ptr<I> mInstalled;
  std::shared_ptr<I> mDefault;
};

struct Registry {
  Slot<IMessageService, ConsoleMessageService> message;
  Slot<IDialogService, NoDialogService> dialog;
  Slot<IShellService, NoShellService> shell;
  Slot<IPickerService, CancellingPickerService> picker;
  Slot<ITipService, NoTipService> tip;
  Slot<ICursorService, StateCursorService> cursor;
  Slot<ITimerService, SystemTimerService> timer;
};

Registry& TheRegistry() {
  static Registry registry;
  return registry;
}

}  // namespace

IMessageService& Services::Message() {
  return TheRegistry().message.Get();
}
IDialogService& Services::Dialog() {
  return TheRegistry().dialog.Get();
}
IShellService& Services::Shell() {
  return TheRegistry().shell.Get();
}
IPickerService& Services::Picker() {
  return TheRegistry().picker.Get();
}
ITipService& Services::Tip() {
  return TheRegistry().tip.Get();
}
ICursorService& Services::Cursor() {
  return TheRegistry().cursor.Get();
}
ITimerService& Services::Timer() {
  return TheRegistry().timer.Get();
}

std::shared_ptr<IMessageService> Services::Install(std::shared_ptr<IMessageService> service) {
  return TheRegistry().message.Replace(std::move(service));
}
std::shared_ptr<IDialogService> Services::Install(std::shared_ptr<IDialogService> service) {
  return TheRegistry().dialog.Replace(std::move(service));
}
std::shared_ptr<IShellService> Services::Install(std::shared_ptr<IShellService> service) {
  return TheRegistry().shell.Replace(std::move(service));
}
std::shared_ptr<IPickerService> Services::Install(std::shared_ptr<IPickerService> service) {
  return TheRegistry().picker.Replace(std::move(service));
}
std::shared_ptr<ITipService> Services::Install(std::shared_ptr<ITipService> service) {
  return TheRegistry().tip.Replace(std::move(service));
}
std::shared_ptr<ICursorService> Services::Install(std::shared_ptr<ICursorService> service) {
  return TheRegistry().cursor.Replace(std::move(service));
}
std::shared_ptr<ITimerService> Services::Install(std::shared_ptr<ITimerService> service) {
  return TheRegistry().timer.Replace(std::move(service));
}

}  // namespace sv
