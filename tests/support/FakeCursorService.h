#pragma once

#include "foundation/CursorService.h"

#include <QString>

namespace sv::test {

// Keeps the wait cursor as state and records each change: "1" on, "0" off, in order.
class FakeCursorService : public ICursorService {
 public:
  void SetWaitCursor(bool on) override;
  bool IsWaitCursor() const override { return mWait; }
  const QString& Changes() const { return mChanges; }

 private:
  bool mWait = false;
  QString mChanges;
};

}  // namespace sv::test
