#pragma once

#include <QHash>
#include <QPointer>
#include <QTreeWidget>

#include "studio/ImageListIcons.h"
#include "ui/ExplorerBar.h"

namespace sv {

// Draws an ExplorerBar as a two-level tree: groups as bold, openable titles and their items
// below, ticked items with a tick. Clicking an item or a title, or a group's expander, becomes
// the bar's userClickItem or userToggleGroup; the bar's selection is what the widget shows.
class ExplorerBarRenderer : public QTreeWidget {
  Q_OBJECT

 public:
  explicit ExplorerBarRenderer(ExplorerBar* bar, QWidget* parent = nullptr);

  ExplorerBar* Bar() const { return mBar; }
  QTreeWidgetItem* ItemFor(const ExplorerBarGroup* group) const { return mGroups.value(group); }
  QTreeWidgetItem* ItemFor(const ExplorerBarItem* item) const { return mItems.value(item); }

 private:
  void rebuild();
  void fillGroup(ExplorerBarGroup* group);
  void showGroup(const ExplorerBarGroup* group);
  void showItem(const ExplorerBarItem* item);
  void showBar();
  void showSelection(const ExplorerBarItem* item);
  void groupChanged(ExplorerBarGroup* group);
  void itemPressed(QTreeWidgetItem* widgetItem);
  void groupOpened(QTreeWidgetItem* widgetItem, bool open);

  QPointer<ExplorerBar> mBar;
  QHash<const ExplorerBarGroup*, QTreeWidgetItem*> mGroups;
  QHash<const ExplorerBarItem*, QTreeWidgetItem*> mItems;
  // What each widget item draws, so that input finds its way back.
  QHash<const QTreeWidgetItem*, ExplorerBarGroup*> mGroupOf;
  QHash<const QTreeWidgetItem*, ExplorerBarItem*> mItemOf;
  ImageListIcons mIcons;
};

}  // namespace sv
