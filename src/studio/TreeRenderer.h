#pragma once

#include <QHash>
#include <QPointer>
#include <QTreeWidget>

#include "studio/ImageListIcons.h"
#include "ui/TreeView.h"

namespace sv {

// Draws a TreeView with a QTreeWidget, one item per node, and turns a person's clicks, keys,
// ticks, expanders and label edits into the tree's user* actions. The tree is the truth: the
// widget only ever shows what the tree holds, so a handler that cancels Expanding or rewrites a
// label is shown as it decided. A node with a placeholder child shows an expander, and opening
// it runs Expanding, where the component swaps the placeholder for the real children.
class TreeRenderer : public QTreeWidget {
  Q_OBJECT

 public:
  explicit TreeRenderer(TreeView* tree, QWidget* parent = nullptr);

  TreeView* Tree() const { return mTree; }
  // Null for a node the tree no longer holds.
  QTreeWidgetItem* ItemFor(const TreeNode* node) const { return mItems.value(node); }
  TreeNode* NodeFor(const QTreeWidgetItem* item) const { return mNodes.value(item); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

 private:
  void rebuild();
  void addBranch(TreeNode* node);
  QTreeWidgetItem* parentItemOf(const TreeNode* node);
  void forgetBranch(const TreeNode* node);
  void showNode(const TreeNode* node);
  void showBranch(const TreeNode* node);
  void showAll();
  void showSelection(const TreeNode* node);
  void openEditorForEditingNode();
  bool beginLabelEdit(const QModelIndex& index);

  void nodeAdded(TreeNode* node);
  void nodeAboutToBeRemoved(TreeNode* node);
  void nodeMoved(TreeNode* node);
  void itemPressed(QTreeWidgetItem* item);
  void itemDoubleClicked(QTreeWidgetItem* item);
  void itemExpanded(QTreeWidgetItem* item);
  void itemCollapsed(QTreeWidgetItem* item);
  void itemChanged(QTreeWidgetItem* item);

  QPointer<TreeView> mTree;
  QHash<const TreeNode*, QTreeWidgetItem*> mItems;
  QHash<const QTreeWidgetItem*, TreeNode*> mNodes;
  ImageListIcons mIcons;
};

}  // namespace sv
