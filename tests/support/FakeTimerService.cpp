#include "FakeTimerService.h"

#include <QTimeZone>

namespace sv::test {

FakeTimerService::FakeTimerService() : mNow(QDate(2008, 1, 1), QTime(9, 0), QTimeZone::utc()) {}

int FakeTimerService::SingleShot(int ms, std::function<void()> callback) {
  const int id = mNextId++;
  mPending.emplace(std::pair{mNow.addMSecs(ms), id}, std::move(callback));
  return id;
}

void FakeTimerService::Cancel(int id) {
  std::erase_if(mPending, [id](const auto& entry) { return entry.first.second == id; });
}

void FakeTimerService::Advance(int ms) {
  const QDateTime end = mNow.addMSecs(ms);
  // A callback may start or cancel timers, so take the earliest one afresh each time.
  while (!mPending.empty() && mPending.begin()->first.first <= end) {
    auto first = mPending.begin();
    mNow = first->first.first;
    auto callback = std::move(first->second);
    mPending.erase(first);
    callback();
  }
  mNow = end;
}

}  // namespace sv::test
