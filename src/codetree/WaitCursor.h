#pragma once

#include "foundation/Services.h"

namespace sv {

// Shows the wait cursor for a scope and restores the normal pointer on every way out.
class WaitCursor {
 public:
  WaitCursor() { Services::Cursor().SetWaitCursor(true); }
  ~WaitCursor() { Services::Cursor().SetWaitCursor(false); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

}  // namespace sv
