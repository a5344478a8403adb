#pragma once

#include "foundation/CursorService.h"

namespace sv {

// The wait cursor as the application's override cursor. The service holds at most one override
// of its own, so turning it off never pops a cursor someone else pushed.
class QtCursorService : public ICursorService {
 public:
  QtCursorService() = default;
  ~QtCursorService() override;
  QtCursorService(const QtCursorService&) = delete;
  QtCursorService& operator=(const QtCursorService&) = delete;

  void SetWaitCursor(bool on) override;
  bool IsWaitCursor() const override { return mWait; }

 private:
  bool mWait = false;
};

}  // namespace sv
