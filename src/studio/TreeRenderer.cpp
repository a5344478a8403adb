#include "studio/TreeRenderer.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <functional>

#include "studio/QtConvert.h"
#include "studio/RenderedWidgets.h"
#include "ui/Keys.h"

namespace sv {

namespace {

// Asks the tree before an editor opens, so that BeforeLabelEdit may refuse the edit.
class LabelEditDelegate : public QStyledItemDelegate {
 public:
  using Begin = std::function<bool(const QModelIndex&)>;
  LabelEditDelegate(Begin begin, QObject* parent)
      : QStyledItemDelegate(parent), mBegin(std::move(begin)) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override {
    if (!mBegin(index)) return nullptr;
    return QStyledItemDelegate::createEditor(parent, option, index);
  }

 private:
  Begin mBegin;
};

}  // namespace

TreeRenderer::TreeRenderer(TreeView* tree, QWidget* parent) : QTreeWidget(parent), mTree(tree) {
  setColumnCount(1);
  header()->hide();
  setUniformRowHeights(true);
  // The tree opens a node on a double click itself, after its events.
  setExpandsOnDoubleClick(false);
  setEditTriggers(EditKeyPressed | SelectedClicked);
  setItemDelegate(new LabelEditDelegate(
      [this](const QModelIndex& index) { return beginLabelEdit(index); }, this));
  RenderedWidgets::Register(tree, this);

  connect(tree, &TreeView::nodeAdded, this, &TreeRenderer::nodeAdded);
  connect(tree, &TreeView::nodeAboutToBeRemoved, this, &TreeRenderer::nodeAboutToBeRemoved);
  connect(tree, &TreeView::nodeMoved, this, &TreeRenderer::nodeMoved);
  connect(tree, &TreeView::nodeChanged, this, &TreeRenderer::showNode);
  connect(tree, &TreeView::nodesCleared, this, &TreeRenderer::rebuild);
  connect(tree, &TreeView::selectionChanged, this, &TreeRenderer::showSelection);
  connect(tree, &TreeView::checkBoxesChanged, this, &TreeRenderer::showAll);
  connect(tree, &TreeView::redrawChanged, this, &QWidget::setUpdatesEnabled);
  connect(tree, &TreeView::focusRequested, this, [this] { setFocus(); });
  // A component may start an edit from code (StartLabelEdit); the editor opens once its
  // BeforeLabelEdit handlers have had their say.
  connect(tree, &TreeView::BeforeLabelEdit, this, &TreeRenderer::openEditorForEditingNode,
          Qt::QueuedConnection);

  connect(this, &QTreeWidget::itemPressed, this, &TreeRenderer::itemPressed);
  connect(this, &QTreeWidget::itemDoubleClicked, this, &TreeRenderer::itemDoubleClicked);
  connect(this, &QTreeWidget::itemExpanded, this, &TreeRenderer::itemExpanded);
  connect(this, &QTreeWidget::itemCollapsed, this, &TreeRenderer::itemCollapsed);
  connect(this, &QTreeWidget::itemChanged, this, &TreeRenderer::itemChanged);
  rebuild();
}

void TreeRenderer::rebuild() {
  const QSignalBlocker blocker(this);
  mItems.clear();
  mNodes.clear();
  clear();
  for (TreeNode* node : mTree->TopNodes()) addBranch(node);
  showSelection(mTree->SelectedItem());
}

QTreeWidgetItem* TreeRenderer::parentItemOf(const TreeNode* node) {
  return node->Parent() ? mItems.value(node->Parent()) : invisibleRootItem();
}

void TreeRenderer::addBranch(TreeNode* node) {
  auto* item = new QTreeWidgetItem;
  mItems.insert(node, item);
  mNodes.insert(item, node);
  parentItemOf(node)->insertChild(node->SiblingIndex(), item);
  for (TreeNode* child : node->Children()) addBranch(child);
  showNode(node);
}

void TreeRenderer::forgetBranch(const TreeNode* node) {
  mNodes.remove(mItems.take(node));
  for (const TreeNode* child : node->Children()) forgetBranch(child);
}

void TreeRenderer::showNode(const TreeNode* node) {
  QTreeWidgetItem* item = mItems.value(node);
  if (!item) return;
  const QSignalBlocker blocker(this);
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
  if (mTree->CheckBoxes()) flags |= Qt::ItemIsUserCheckable;
  item->setFlags(flags);
  item->setText(0, node->Text());
  QFont font = item->font(0);
  font.setBold(node->Bold());
  item->setFont(0, font);
  // Black is the tree's default: leave it to the palette so that dark themes stay readable.
  item->setForeground(0, node->ForeColor() == 0 ? palette().text()
                                                : QBrush(QtConvert::ToQColor(node->ForeColor())));
  if (mTree->CheckBoxes())
    item->setCheckState(0, node->Checked() ? Qt::Checked : Qt::Unchecked);
  else
    item->setData(0, Qt::CheckStateRole, QVariant());
  const bool open = node->Expanded() && node->Child();
  const QString& image =
      open && !node->ExpandedImage().isEmpty() ? node->ExpandedImage() : node->Image();
  item->setIcon(0, mIcons.Icon(mTree->ImageList(), image));
  item->setExpanded(open);
}

void TreeRenderer::showBranch(const TreeNode* node) {
  for (const TreeNode* child : node->Children()) showBranch(child);
  showNode(node);
}

void TreeRenderer::showAll() {
  for (const TreeNode* node : mTree->AllNodes()) showNode(node);
}

void TreeRenderer::showSelection(const TreeNode* node) {
  const QSignalBlocker blocker(this);
  QTreeWidgetItem* item = node ? mItems.value(node) : nullptr;
  setCurrentItem(item);
  if (!item) clearSelection();
}

void TreeRenderer::nodeAdded(TreeNode* node) {
  addBranch(node);
  // The parent just gained an expander, or its first child under an open flag.
  if (node->Parent()) showNode(node->Parent());
}

void TreeRenderer::nodeAboutToBeRemoved(TreeNode* node) {
  QTreeWidgetItem* item = mItems.value(node);
  forgetBranch(node);
  const QSignalBlocker blocker(this);
  delete item;
}

void TreeRenderer::nodeMoved(TreeNode* node) {
  QTreeWidgetItem* item = mItems.value(node);
  const QSignalBlocker blocker(this);
  QTreeWidgetItem* oldParent = item->parent() ? item->parent() : invisibleRootItem();
  oldParent->takeChild(oldParent->indexOfChild(item));
  parentItemOf(node)->insertChild(node->SiblingIndex(), item);
  // A branch taken out of the view comes back closed.
  showBranch(node);
  if (node->Parent()) showNode(node->Parent());
}

void TreeRenderer::itemPressed(QTreeWidgetItem* item) {
  if (!(QGuiApplication::mouseButtons() & Qt::LeftButton)) return;
  if (TreeNode* node = NodeFor(item)) mTree->userClick(node);
}

void TreeRenderer::itemDoubleClicked(QTreeWidgetItem* item) {
  if (TreeNode* node = NodeFor(item)) mTree->userDoubleClick(node);
}

void TreeRenderer::itemExpanded(QTreeWidgetItem* item) {
  TreeNode* node = NodeFor(item);
  if (!node) return;
  mTree->userExpand(node);
  // Expanding may have been cancelled, or the handler may have emptied the node.
  showNode(node);
}

void TreeRenderer::itemCollapsed(QTreeWidgetItem* item) {
  TreeNode* node = NodeFor(item);
  if (!node) return;
  mTree->userCollapse(node);
  showNode(node);
}

void TreeRenderer::itemChanged(QTreeWidgetItem* item) {
  TreeNode* node = NodeFor(item);
  if (!node) return;
  const bool ticked = item->checkState(0) == Qt::Checked;
  if (mTree->CheckBoxes() && ticked != node->Checked()) mTree->userToggleCheck(node);
  if (item->text(0) != node->Text()) mTree->userEditLabel(node, item->text(0));
  // Whatever the handlers decided is what the item shows.
  showNode(node);
}

void TreeRenderer::keyPressEvent(QKeyEvent* event) {
  const int code = QtConvert::ToKeyCode(event->key());
  // Keys the tree has no code for would move Qt's current item behind the tree's back; they
  // go on to the parent instead, for its shortcuts.
  if (code == 0) {
    event->ignore();
    return;
  }
  mTree->userPressKey(code, QtConvert::ToShiftMask(event->modifiers()));
  if (code == KeyCode::F2) edit(currentIndex(), EditKeyPressed, event);
  event->accept();
}

bool TreeRenderer::beginLabelEdit(const QModelIndex& index) {
  TreeNode* node = NodeFor(itemFromIndex(index));
  if (!node) return false;
  if (mTree->EditingNode() == node) return true;
  if (mTree->LabelEdit() == LabelEditMode::Manual || mTree->SelectedItem() != node) return false;
  mTree->StartLabelEdit();
  return mTree->EditingNode() == node;
}

void TreeRenderer::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  QTreeWidget::closeEditor(editor, hint);
  // A changed label was handed over by itemChanged; this is Escape, or Enter on the same text.
  TreeNode* node = mTree->EditingNode();
  if (!node) return;
  if (hint == QAbstractItemDelegate::RevertModelCache) {
    mTree->userCancelLabelEdit();
    return;
  }
  mTree->userEditLabel(node, node->Text());
  showNode(node);
}

void TreeRenderer::openEditorForEditingNode() {
  QTreeWidgetItem* item = mItems.value(mTree->EditingNode());
  if (item && state() != EditingState) editItem(item);
}

}  // namespace sv
