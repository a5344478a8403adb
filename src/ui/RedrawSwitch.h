#pragma once

#include <functional>

namespace sv {

// A widget's redraw flag. Code may write it directly, as classic code does, or take counted
// locks: the first lock turns redraw off and the last unlock turns it back on, so a test can
// see that every lock was released.
class RedrawSwitch {
 public:
  explicit RedrawSwitch(std::function<void(bool)> changed) : mChanged(std::move(changed)) {}

  bool Redraw() const { return mRedraw; }
  void setRedraw(bool value);
  void Lock();
  // Raises InvalidCall when no lock is held: an unbalanced unlock is a bug in the caller.
  void Unlock();
  int LockCount() const { return mLockCount; }

 private:
  std::function<void(bool)> mChanged;
  bool mRedraw = true;
  int mLockCount = 0;
};

}  // namespace sv
