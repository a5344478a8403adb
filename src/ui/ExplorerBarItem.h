#pragma once

#include <QString>

namespace sv {

class ExplorerBar;
class ExplorerBarGroup;

// The pane below an item in which a hosted control sits. Sizes are in the client's ScaleMode
// units (1 twips, 3 pixels, ...). Tag counts the check boxes placed in it so far.
struct ExplorerBarClient {
  int ScaleMode = 1;
  int Width = 0;
  int Height = 0;
  int Tag = 0;
  bool IsFrame = true;
  bool Border = true;
  quint32 BackColor = 0xFFFFFF;

  bool operator==(const ExplorerBarClient&) const = default;
};

// One item of an ExplorerBarGroup, owned by it. Writing a property from code raises nothing,
// except Selected, which raises the bar's SelChange as a person's selection does.
class ExplorerBarItem {
 public:
  ExplorerBarItem(const ExplorerBarItem&) = delete;
  ExplorerBarItem& operator=(const ExplorerBarItem&) = delete;

  ExplorerBarGroup* Group() const { return mGroup; }
  ExplorerBar* Bar() const;
  const QString& Key() const { return mKey; }

  const QString& Caption() const { return mCaption; }
  void setCaption(const QString& value);
  const QString& ToolTip() const { return mToolTip; }
  void setToolTip(const QString& value);
  // A key of the bar's image list; empty for none.
  const QString& Image() const { return mImage; }
  void setImage(const QString& value);
  bool Visible() const { return mVisible; }
  void setVisible(bool value);
  bool Enabled() const { return mEnabled; }
  void setEnabled(bool value);
  // Drawn with a tick mark: the page has content.
  bool Ticked() const { return mTicked; }
  void setTicked(bool value);
  const QString& Tag() const { return mTag; }
  void setTag(const QString& value) { mTag = value; }
  // The name of the control the item hosts in its client pane; empty for a plain item.
  const QString& ControlName() const { return mControlName; }
  void setControlName(const QString& value);
  // The height of the item's pane in pixels.
  int Height() const { return mHeight; }
  void setHeight(int value);
  const ExplorerBarClient& Client() const { return mClient; }
  void setClient(const ExplorerBarClient& value);

  bool Selected() const;
  // Selecting raises SelChange; deselecting the selected item clears the selection and raises
  // SelChange with no item.
  void setSelected(bool value);
  // True when a person can click it: it and its group are shown and enabled, the group open.
  bool IsAvailable() const;

 private:
  friend class ExplorerBarGroup;
  ExplorerBarItem(ExplorerBarGroup* group, const QString& key, const QString& caption,
                  const QString& image)
      : mGroup(group), mKey(key), mCaption(caption), mImage(image) {}
  void changed();

  ExplorerBarGroup* mGroup;
  QString mKey;
  QString mCaption;
  QString mToolTip;
  QString mImage;
  QString mTag;
  QString mControlName;
  ExplorerBarClient mClient;
  int mHeight = 0;
  bool mVisible = true;
  bool mEnabled = true;
  bool mTicked = false;
};

}  // namespace sv
