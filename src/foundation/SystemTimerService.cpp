#include "foundation/SystemTimerService.h"

#include <QTimer>

namespace sv {

SystemTimerService::SystemTimerService() = default;

SystemTimerService::~SystemTimerService() {
  for (const QPointer<QTimer>& timer : mSpent) delete timer.data();
}

QDateTime SystemTimerService::Now() const {
  return QDateTime::currentDateTime();
}

int SystemTimerService::SingleShot(int ms, std::function<void()> callback) {
  const int id = mNextId++;
  std::erase_if(mSpent, [](const QPointer<QTimer>& timer) { return timer.isNull(); });
  auto timer = std::make_unique<QTimer>();
  timer->setSingleShot(true);
  QObject::connect(timer.get(), &QTimer::timeout, [this, id, callback = std::move(callback)] {
    // The timer is released later: it is still inside its own signal here.
    auto found = mTimers.find(id);
    if (found == mTimers.end()) return;
    QTimer* spent = found->second.release();
    spent->deleteLater();
    mSpent.emplace_back(spent);
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
