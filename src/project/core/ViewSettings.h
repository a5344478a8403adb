#pragma once

#include "model/ProjectViewSettings.h"

namespace sv {

// The shared view options held in memory; every option starts off.
class ViewSettings : public ProjectViewSettings {
 public:
  bool Grouped() const override { return mGrouped; }
  void setGrouped(bool value) override { mGrouped = value; }
  bool ShowProtected() const override { return mShowProtected; }
  void setShowProtected(bool value) override { mShowProtected = value; }
  bool ShowFriend() const override { return mShowFriend; }
  void setShowFriend(bool value) override { mShowFriend = value; }
  bool ShowPrivate() const override { return mShowPrivate; }
  void setShowPrivate(bool value) override { mShowPrivate = value; }
  bool AutoExpand() const override { return mAutoExpand; }
  void setAutoExpand(bool value) override { mAutoExpand = value; }

 private:
  bool mGrouped = false;
  bool mShowProtected = false;
  bool mShowFriend = false;
  bool mShowPrivate = false;
  bool mAutoExpand = false;
};

}  // namespace sv
