#pragma once

#include "codetree/ProjectView.h"

namespace sv {

// Holds a ProjectView's counted redraw lock for a scope, so that every way out releases it.
class TreeViewLock {
 public:
  explicit TreeViewLock(ProjectView& view) : mView(view) { mView.LockTreeView(); }
  ~TreeViewLock() { mView.UnlockTreeView(); }
  TreeViewLock(const TreeViewLock&) = delete;
  TreeViewLock& operator=(const TreeViewLock&) = delete;

 private:
  ProjectView& mView;
};

}  // namespace sv
