#pragma once

#include "foundation/TimerService.h"

#include <QPointer>
#include <map>
#include <memory>
#include <vector>

#include <QTimer>

namespace sv {

// The real clock and Qt timers; callbacks run from the thread's event loop.
class SystemTimerService : public ITimerService {
 public:
  SystemTimerService();
  ~SystemTimerService() override;
  QDateTime Now() const override;
  int SingleShot(int ms, std::function<void()> callback) override;
  void Cancel(int id) override;

 private:
  int mNextId = 1;
  std::map<int, std::unique_ptr<QTimer>> mTimers;
  // Fired timers waiting for their deferred delete; freed here if the event loop never got to it.
  std::vector<QPointer<QTimer>> mSpent;
};

}  // namespace sv
