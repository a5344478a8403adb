#pragma once

#include <QDateTime>
#include <functional>

namespace sv {

// The clock and one-shot timers, so that components need no real timers in tests.
class ITimerService {
 public:
  virtual ~ITimerService();
  virtual QDateTime Now() const = 0;
  // Runs callback once after ms milliseconds on the user-interface thread. Answers an id for
  // Cancel.
  virtual int SingleShot(int ms, std::function<void()> callback) = 0;
  // Drops a pending callback; an unknown or fired id is ignored.
  virtual void Cancel(int id) = 0;
};

}  // namespace sv
