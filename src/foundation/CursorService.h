#pragma once

namespace sv {

// The application's wait cursor.
class ICursorService {
 public:
  virtual ~ICursorService();
  virtual void SetWaitCursor(bool on) = 0;
  virtual bool IsWaitCursor() const = 0;
};

}  // namespace sv
