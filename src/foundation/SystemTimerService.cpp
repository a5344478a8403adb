#include "foundation/SystemTimerService.h"

#include <QTimer>

namespace sv {

SystemTimerService::SystemTimerService() = default;

SystemTimerService::~SystemTimerService() = default;

QDateTime SystemTimerService::Now() const {
  return QDateTime::currentDateTime();
}

int SystemTimerService::SingleShot(int ms, std::function<void()> callback) {
  const int id = mNextId++;
  auto timer = std::make_unique<QTimer>();
  timer->setSingleShot(true);
  QObject::connect(timer.get(), &QTimer::timeout, [this, id, callback = std::move(callback)] {
    // The timer is released later: it is still inside its own signal here.
    auto found = mTimers.find(id);
    if (found == mTimers.end()) return;
    found->second.release()->deleteLater();
    mTimers.erase(found);
    // The callback may run a nested event loop; keep it apart from the timer's connection.
    const auto run = callback;
    run();
  });
  timer->start(ms);
  mTimers.emplace(id, std::move(timer));
  return id;
}

void SystemTimerService::Cancel(int id) {
  mTimers.erase(id);
}

}  // namespace sv
