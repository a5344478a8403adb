#pragma once

#include <memory>

class QObject;

namespace sv {

// The host's hook that fits every form and control to the desktop as it loads. What the two
// options do is the widget set's business; the studio installs the hook, and without one
// nothing happens.
class ICommonUI {
 public:
  virtual ~ICommonUI() = default;
  virtual void Configure(QObject* target, bool themed, bool includeChildren) = 0;
};

// Answers the hook it replaced; null removes the hook.
std::shared_ptr<ICommonUI> SetCommonUI(std::shared_ptr<ICommonUI> hook);
ICommonUI* CommonUI();

}  // namespace sv
