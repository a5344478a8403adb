#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "ui/ExplorerBarGroup.h"
#include "ui/ExplorerBarItem.h"
#include "ui/ImageList.h"
#include "ui/RedrawSwitch.h"

namespace sv {

// A bar of titled, collapsible groups of items, held as state. Group keys are unique in the
// bar, item keys in their group; both compare without regard to case. At most one item is
// selected. As in the classic control, selecting from code raises SelChange when the selection
// changes; the components guard against that echo with their own flags.
class ExplorerBar : public QObject {
  Q_OBJECT

 public:
  explicit ExplorerBar(QObject* parent = nullptr);
  ~ExplorerBar() override;

  // Adds a group at the end, or before the group keyed `before`. A key already taken raises
  // DuplicateKey, a missing `before` SubscriptOutOfRange.
  ExplorerBarGroup* AddGroup(const QString& key, const QString& caption = {},
                             const QString& before = {});
  // Removes a group with its items; raises SubscriptOutOfRange for a missing key.
  void RemoveGroup(const QString& key);
  void ClearGroups();
  ExplorerBarGroup* FindGroup(const QString& key) const;
  // Raises SubscriptOutOfRange for a missing key.
  ExplorerBarGroup* Group(const QString& key) const;
  // Zero-based; raises SubscriptOutOfRange outside the list.
  ExplorerBarGroup* Group(int index) const;
  int GroupCount() const { return static_cast<int>(mGroups.size()); }
  std::vector<ExplorerBarGroup*> Groups() const;
  // The first item of that key in group order, or null.
  ExplorerBarItem* FindItem(const QString& key) const;

  ExplorerBarItem* SelectedItem() const { return mSelected; }
  // Null clears the selection. Raises SelChange when the selection changes.
  void setSelectedItem(ExplorerBarItem* item);

  // Colours are 0xRRGGBB or a system colour (see SystemColors.h).
  quint32 BackColor() const { return mBackColor; }
  void setBackColor(quint32 value);
  // The colour of item captions; absent means the bar's default.
  std::optional<quint32> ItemTextColor() const { return mItemTextColor; }
  void setItemTextColor(std::optional<quint32> value);
  // A font description such as "Tahoma, 8".
  const QString& Font() const { return mFont; }
  void setFont(const QString& value);
  // 0 the plain look, 1 the themed look that indents hosted controls.
  int Style() const { return mStyle; }
  void setStyle(int value);
  // Pixels between the bar's edge and a group's client, and between a client and its items.
  int ClientMargin() const { return mClientMargin; }
  void setClientMargin(int value) { mClientMargin = value; }
  int ItemIndent() const { return mItemIndent; }
  void setItemIndent(int value) { mItemIndent = value; }
  // The bar's width in its parent's scale units.
  int Width() const { return mWidth; }
  void setWidth(int value);
  // The scale mode of the bar's parent; absent when the parent has none.
  std::optional<int> ParentScaleMode() const { return mParentScaleMode; }
  void setParentScaleMode(std::optional<int> value) { mParentScaleMode = value; }
  const QString& Tag() const { return mTag; }
  void setTag(const QString& value) { mTag = value; }
  int TabIndex() const { return mTabIndex; }
  void setTabIndex(int value) { mTabIndex = value; }
  bool Visible() const { return mVisible; }
  void setVisible(bool value);
  bool Enabled() const { return mEnabled; }
  void setEnabled(bool value);

  // The bar's own list unless another was given; never null.
  sv::ImageList* ImageList() const;
  void setImageList(sv::ImageList* images) { mSharedImages = images; }

  bool Redraw() const { return mRedraw.Redraw(); }
  void setRedraw(bool value) { mRedraw.setRedraw(value); }
  void LockRedraw() { mRedraw.Lock(); }
  void UnlockRedraw() { mRedraw.Unlock(); }
  int RedrawLockCount() const { return mRedraw.LockCount(); }
  // Asks for a repaint now; counted so that a test can see it.
  void Refresh();
  int RefreshCount() const { return mRefreshCount; }

  // Shown groups and items as lines: "- " or "+ " before an open or closed group with its key,
  // then its shown items indented, each "* " when selected, "[x] " when ticked, the caption,
  // " <key>", " {image}" when it has one and " (disabled)".
  QString Dump() const;

  // A click on an available item: it becomes the selection (SelChange when that changed), then
  // ItemClick. Answers whether the click reached an item.
  bool userClickItem(ExplorerBarItem* item);
  // The first item of that key; raises SubscriptOutOfRange when there is none.
  bool userClickItem(const QString& key);
  // A click on a shown, enabled group's title: it opens or closes, then GroupExpand or
  // GroupCollapse.
  bool userToggleGroup(const QString& key);

 signals:
  void SelChange(sv::ExplorerBarItem* item);
  void ItemClick(sv::ExplorerBarItem* item);
  void GroupExpand(sv::ExplorerBarGroup* group);
  void GroupCollapse(sv::ExplorerBarGroup* group);

  // For renderers: the state changed.
  void itemChanged(sv::ExplorerBarItem* item);
  void groupChanged(sv::ExplorerBarGroup* group);
  void groupsChanged();
  void barChanged();
  void redrawChanged(bool redraw);
  void refreshed();

 private:
  friend class ExplorerBarGroup;
  friend class ExplorerBarItem;

  void forgetSelection(const ExplorerBarGroup* group, const ExplorerBarItem* item);
  std::size_t positionOf(const QString& key) const;
  bool holds(const ExplorerBarItem* item) const;

  std::vector<std::unique_ptr<ExplorerBarGroup>> mGroups;
  ExplorerBarItem* mSelected = nullptr;
  quint32 mBackColor = 0xFFFFFF;
  std::optional<quint32> mItemTextColor;
  QString mFont = QStringLiteral("Tahoma, 8");
  int mStyle = 0;
  int mClientMargin = 8;
  int mItemIndent = 4;
  int mWidth = 0;
  std::optional<int> mParentScaleMode;
  QString mTag;
  int mTabIndex = 0;
  bool mVisible = true;
  bool mEnabled = true;
  int mRefreshCount = 0;
  sv::ImageList* mOwnImages;
  QPointer<sv::ImageList> mSharedImages;
  RedrawSwitch mRedraw;
};

}  // namespace sv
