#pragma once

namespace sv {

// The view options that all code trees share.
class ProjectViewSettings {
 public:
  virtual ~ProjectViewSettings() = default;

  virtual bool Grouped() const = 0;
  virtual void setGrouped(bool value) = 0;
  virtual bool ShowProtected() const = 0;
  virtual void setShowProtected(bool value) = 0;
  virtual bool ShowFriend() const = 0;
  virtual void setShowFriend(bool value) = 0;
  virtual bool ShowPrivate() const = 0;
  virtual void setShowPrivate(bool value) = 0;
  virtual bool AutoExpand() const = 0;
  virtual void setAutoExpand(bool value) = 0;
};

}  // namespace sv
