#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "studio/QtDialogService.h"
#include "studio/QtTipService.h"

namespace sv {

// The Qt services while the object lives: message boxes, dialogs, pickers, the shell, the wait
// cursor, tips and timers, the text measurer and the visual theme. Destroying it puts back what
// was installed before, which must happen while the QApplication still exists.
class QtServices {
 public:
  QtServices();
  ~QtServices();
  QtServices(const QtServices&) = delete;
  QtServices& operator=(const QtServices&) = delete;

  // Windows register their dialog factories and tip texts here.
  QtDialogService& Dialog() const { return *mDialog; }
  QtTipService& Tip() const { return *mTip; }

 private:
  std::shared_ptr<QtDialogService> mDialog;
  std::shared_ptr<QtTipService> mTip;
  std::vector<std::function<void()>> mRestore;
};

// Installs the Qt services; keep the answer for as long as the application runs.
std::unique_ptr<QtServices> InstallQtServices();

}  // namespace sv
