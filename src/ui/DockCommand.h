#pragma once

#include <QString>
#include <vector>

namespace sv {

class Dock;
class DockBand;

// Button: clicked. Check: a toggle whose Value is 1 while pressed. Edit: an edit box with Text.
// Popup: opens a list of entries, which are commands of their own; it has a current entry and,
// like a toggle, a Value.
enum class DockCommandType { Button, Check, Edit, Popup };

// One command of a Dock, owned by it. Writing a property from code raises no event.
class DockCommand {
 public:
  DockCommand(const DockCommand&) = delete;
  DockCommand& operator=(const DockCommand&) = delete;

  Dock* Owner() const { return mDock; }
  const QString& Key() const { return mKey; }
  DockCommandType Type() const { return mType; }

  const QString& Caption() const { return mCaption; }
  void setCaption(const QString& value);
  const QString& ToolTipText() const { return mToolTipText; }
  void setToolTipText(const QString& value);
  // A key of the dock's image list; empty for none.
  const QString& Image() const { return mImage; }
  void setImage(const QString& value);
  bool Enabled() const { return mEnabled; }
  void setEnabled(bool value);
  bool Visible() const { return mVisible; }
  void setVisible(bool value);
  // Draws a separator before the command.
  bool BeginGroup() const { return mBeginGroup; }
  void setBeginGroup(bool value);
  const QString& Tag() const { return mTag; }
  void setTag(const QString& value) { mTag = value; }
  // The pressed state: 1 pressed, 0 not.
  int Value() const { return mValue; }
  void setValue(int value);
  // The text of an edit box.
  const QString& Text() const { return mText; }
  void setText(const QString& value);

  // The band the command sits on; null for a popup entry or a command placed on no band.
  DockBand* Band() const { return mBand; }
  // The popup holding this command as an entry, or null.
  DockCommand* Popup() const { return mPopup; }
  const std::vector<DockCommand*>& Entries() const { return mEntries; }
  DockCommand* CurrentEntry() const { return mCurrentEntry; }
  // Must be one of Entries(), or null.
  void setCurrentEntry(DockCommand* entry);

 private:
  friend class Dock;
  DockCommand(Dock* dock, const QString& key, DockCommandType type, const QString& caption);
  void changed();

  Dock* mDock;
  QString mKey;
  DockCommandType mType;
  QString mCaption;
  QString mToolTipText;
  QString mImage;
  QString mTag;
  QString mText;
  int mValue = 0;
  bool mEnabled = true;
  bool mVisible = true;
  bool mBeginGroup = false;
  DockBand* mBand = nullptr;
  DockCommand* mPopup = nullptr;
  std::vector<DockCommand*> mEntries;
  DockCommand* mCurrentEntry = nullptr;
};

}  // namespace sv
