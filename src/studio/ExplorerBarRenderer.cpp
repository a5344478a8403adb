#include "studio/ExplorerBarRenderer.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QSignalBlocker>

#include "studio/QtConvert.h"
#include "studio/RenderedWidgets.h"

namespace sv {

ExplorerBarRenderer::ExplorerBarRenderer(ExplorerBar* bar, QWidget* parent)
    : QTreeWidget(parent), mBar(bar) {
  setColumnCount(1);
  header()->hide();
  setRootIsDecorated(true);
  setExpandsOnDoubleClick(false);
  setEditTriggers(NoEditTriggers);
  RenderedWidgets::Register(bar, this);

  connect(bar, &ExplorerBar::groupsChanged, this, &ExplorerBarRenderer::rebuild);
  connect(bar, &ExplorerBar::groupChanged, this, &ExplorerBarRenderer::groupChanged);
  connect(bar, &ExplorerBar::itemChanged, this, &ExplorerBarRenderer::showItem);
  connect(bar, &ExplorerBar::barChanged, this, &ExplorerBarRenderer::showBar);
  connect(bar, &ExplorerBar::SelChange, this, &ExplorerBarRenderer::showSelection);
  connect(bar, &ExplorerBar::redrawChanged, this, &QWidget::setUpdatesEnabled);
  connect(bar, &ExplorerBar::refreshed, viewport(), qOverload<>(&QWidget::update));

  connect(this, &QTreeWidget::itemPressed, this, &ExplorerBarRenderer::itemPressed);
  connect(this, &QTreeWidget::itemExpanded, this,
          [this](QTreeWidgetItem* item) { groupOpened(item, true); });
  connect(this, &QTreeWidget::itemCollapsed, this,
          [this](QTreeWidgetItem* item) { groupOpened(item, false); });
  rebuild();
}

void ExplorerBarRenderer::rebuild() {
  const QSignalBlocker blocker(this);
  clear();
  mGroups.clear();
  mItems.clear();
  mGroupOf.clear();
  mItemOf.clear();
  for (ExplorerBarGroup* group : mBar->Groups()) {
    auto* title = new QTreeWidgetItem(this);
    mGroups.insert(group, title);
    mGroupOf.insert(title, group);
    fillGroup(group);
  }
  showBar();
}

void ExplorerBarRenderer::fillGroup(ExplorerBarGroup* group) {
  QTreeWidgetItem* title = mGroups.value(group);
  for (QTreeWidgetItem* child : title->takeChildren()) {
    mItems.remove(mItemOf.take(child));
    delete child;
  }
  for (ExplorerBarItem* item : group->Items()) {
    auto* row = new QTreeWidgetItem(title);
    mItems.insert(item, row);
    mItemOf.insert(row, item);
    showItem(item);
  }
  showGroup(group);
}

void ExplorerBarRenderer::groupChanged(ExplorerBarGroup* group) {
  // Items may have come or gone; a group's own change is cheap to redraw in full.
  const QSignalBlocker blocker(this);
  fillGroup(group);
  showSelection(mBar->SelectedItem());
}

void ExplorerBarRenderer::showGroup(const ExplorerBarGroup* group) {
  QTreeWidgetItem* title = mGroups.value(group);
  if (!title) return;
  const QSignalBlocker blocker(this);
  title->setText(0, group->Caption());
  QFont font = QtConvert::ToQFont(mBar->Font());
  font.setBold(true);
  title->setFont(0, font);
  title->setIcon(0, mIcons.Icon(mBar->ImageList(), group->Icon()));
  title->setFlags(group->Enabled() ? Qt::ItemIsEnabled : Qt::NoItemFlags);
  title->setHidden(!group->Visible());
  title->setExpanded(group->Expanded());
}

void ExplorerBarRenderer::showItem(const ExplorerBarItem* item) {
  QTreeWidgetItem* row = mItems.value(item);
  if (!row) return;
  const QSignalBlocker blocker(this);
  row->setText(0, item->Caption());
  row->setToolTip(0, item->ToolTip());
  row->setFont(0, QtConvert::ToQFont(mBar->Font()));
  const auto colour = mBar->ItemTextColor();
  row->setForeground(0, colour ? QBrush(QtConvert::ToQColor(*colour)) : palette().text());
  row->setIcon(0, mIcons.Icon(mBar->ImageList(), item->Image()));
  row->setFlags(item->Enabled() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
  // A tick that shows the page has content; the person does not set it here.
  row->setData(0, Qt::CheckStateRole, item->Ticked() ? QVariant(Qt::Checked) : QVariant());
  row->setHidden(!item->Visible());
}

void ExplorerBarRenderer::showBar() {
  QPalette colours = palette();
  colours.setColor(QPalette::Base, QtConvert::ToQColor(mBar->BackColor()));
  setPalette(colours);
  setEnabled(mBar->Enabled());
  RenderedWidgets::ApplyVisible(this, mBar->Visible());
  for (const ExplorerBarGroup* group : mBar->Groups()) {
    showGroup(group);
    for (const ExplorerBarItem* item : group->Items()) showItem(item);
  }
  showSelection(mBar->SelectedItem());
}

void ExplorerBarRenderer::showSelection(const ExplorerBarItem* item) {
  const QSignalBlocker blocker(this);
  QTreeWidgetItem* row = item ? mItems.value(item) : nullptr;
  setCurrentItem(row);
  if (!row) clearSelection();
}

void ExplorerBarRenderer::itemPressed(QTreeWidgetItem* widgetItem) {
  if (!(QGuiApplication::mouseButtons() & Qt::LeftButton)) return;
  if (ExplorerBarItem* item = mItemOf.value(widgetItem)) {
    mBar->userClickItem(item);
    // A refused click leaves the old selection standing.
    showSelection(mBar->SelectedItem());
    return;
  }
  if (ExplorerBarGroup* group = mGroupOf.value(widgetItem)) {
    const QString key = group->Key();
    mBar->userToggleGroup(key);
    if (ExplorerBarGroup* still = mBar->FindGroup(key)) showGroup(still);
  }
}

void ExplorerBarRenderer::groupOpened(QTreeWidgetItem* widgetItem, bool open) {
  ExplorerBarGroup* group = mGroupOf.value(widgetItem);
  if (!group) return;
  const QString key = group->Key();
  if (group->Expanded() != open) mBar->userToggleGroup(key);
  if (ExplorerBarGroup* still = mBar->FindGroup(key)) showGroup(still);
}

}  // namespace sv
