#pragma once

#include <QString>
#include <vector>

namespace sv {

class Dock;
class DockCommand;

// A bar of a Dock that holds commands in order and can be shown or hidden as a whole.
class DockBand {
 public:
  DockBand(const DockBand&) = delete;
  DockBand& operator=(const DockBand&) = delete;

  Dock* Owner() const { return mDock; }
  const QString& Key() const { return mKey; }
  const QString& Caption() const { return mCaption; }
  void setCaption(const QString& value);
  bool Visible() const { return mVisible; }
  // Showing or hiding from code raises nothing.
  void setVisible(bool value);
  const std::vector<DockCommand*>& Commands() const { return mCommands; }

 private:
  friend class Dock;
  DockBand(Dock* dock, const QString& key, const QString& caption)
      : mDock(dock), mKey(key), mCaption(caption) {}
  void changed();

  Dock* mDock;
  QString mKey;
  QString mCaption;
  bool mVisible = true;
  std::vector<DockCommand*> mCommands;
};

}  // namespace sv
