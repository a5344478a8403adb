#pragma once

#include "foundation/TimerService.h"

#include <map>
#include <utility>

namespace sv::test {

// A manual clock. Time moves only by Advance, which fires the callbacks that fall due, in
// order of their due time and then of their start.
class FakeTimerService : public ITimerService {
 public:
  FakeTimerService();
  QDateTime Now() const override { return mNow; }
  int SingleShot(int ms, std::function<void()> callback) override;
  void Cancel(int id) override;

  void Advance(int ms);
  void SetNow(const QDateTime& now) { mNow = now; }
  int Pending() const { return static_cast<int>(mPending.size()); }

 private:
  QDateTime mNow;
  int mNextId = 1;
  // Keyed by (due time, id): the map's order is the firing order.
  std::map<std::pair<QDateTime, int>, std::function<void()>> mPending;
};

}  // namespace sv::test
