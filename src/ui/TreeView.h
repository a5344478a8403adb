#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <utility>
#include <vector>

#include "ui/ImageList.h"
#include "ui/NodeKey.h"
#include "ui/RedrawSwitch.h"
#include "ui/TreeNode.h"

namespace sv {

// Where Add and Move put a node relative to another.
enum class TreeRelationship { First = 0, Last = 1, Next = 2, Previous = 3, Child = 4 };
enum class LabelEditMode { Automatic = 0, Manual = 1 };

struct TreeDumpOptions {
  int depth = -1;                  // levels to print; -1 prints all
  bool images = false;             // add " {Image}" or " {Image/ExpandedImage}"
  bool keys = false;               // add " <Key>"
  bool visibleOnly = false;        // leave out the children of collapsed nodes
  const TreeNode* from = nullptr;  // print this node's branch instead of the whole tree
};

// A tree of keyed nodes, held as state, raising the events of a desktop tree control in the
// order it raises them. Keys are unique in the whole tree and compared without regard to case
// unless KeysIgnoreCase is turned off; lookup and adding at the end of a branch take constant
// time, so that trees of a few hundred thousand nodes stay quick.
class TreeView : public QObject {
  Q_OBJECT

 public:
  explicit TreeView(QObject* parent = nullptr);
  ~TreeView() override;

  // Adds a node next to `relative`, or at the top level when `relative` is null (First puts it
  // before the other top-level nodes, anything else after them). A key held by another node
  // raises DuplicateKey and adds nothing. An empty key is allowed and indexes nothing.
  TreeNode* Add(TreeNode* relative, TreeRelationship relationship, const QString& key,
                const QString& text, const QString& image = {});
  // Add(parent, Child, ...), or a last top-level node when `parent` is null.
  TreeNode* AddChild(TreeNode* parent, const QString& key, const QString& text,
                     const QString& image = {});
  // Removes a node with its branch and frees their keys. A removed selection passes to the next
  // sibling, else to the parent, else to the previous sibling. Raises nothing.
  void Remove(TreeNode* node);
  void Remove(const QString& key);
  void Clear();
  // Makes room for `count` more keyed nodes at once, so that a host about to add a large batch
  // does not pay for the key index growing step by step. Changes nothing visible.
  void ReserveKeys(int count);
  // Moves a node with its branch; moving it next to or under a node of its own branch raises
  // InvalidCall.
  void Move(TreeNode* node, TreeNode* relative, TreeRelationship relationship);

  int Count() const { return mCount; }
  bool Exists(const QString& key) const { return Find(key) != nullptr; }
  // Null when no node holds the key.
  TreeNode* Find(const QString& key) const { return mKeys.value(fold(key)); }
  // Raises SubscriptOutOfRange when no node holds the key.
  TreeNode* Item(const QString& key) const;
  TreeNode::ChildList TopNodes() const { return mRoot.Children(); }
  TreeNode* FirstNode() const { return mRoot.Child(); }
  TreeNode* LastNode() const { return mRoot.LastChild(); }
  // Every node, parents before children, siblings in order: a snapshot safe to edit through.
  std::vector<TreeNode*> AllNodes() const;

  bool KeysIgnoreCase() const { return mKeysIgnoreCase; }
  // Only while the tree is empty; raises InvalidCall otherwise.
  void setKeysIgnoreCase(bool value);

  TreeNode* SelectedItem() const { return mSelected; }
  // Selecting from code raises nothing and opens no ancestor.
  void setSelectedItem(TreeNode* node);
  bool CheckBoxes() const { return mCheckBoxes; }
  void setCheckBoxes(bool value);
  LabelEditMode LabelEdit() const { return mLabelEdit; }
  void setLabelEdit(LabelEditMode value) { mLabelEdit = value; }
  const QString& PathSeparator() const { return mPathSeparator; }
  void setPathSeparator(const QString& value) { mPathSeparator = value; }
  // The tree's own list unless another was given; never null.
  sv::ImageList* ImageList() const;
  void setImageList(sv::ImageList* images) { mSharedImages = images; }

  bool Redraw() const { return mRedraw.Redraw(); }
  void setRedraw(bool value) { mRedraw.setRedraw(value); }
  void LockRedraw() { mRedraw.Lock(); }
  void UnlockRedraw() { mRedraw.Unlock(); }
  int RedrawLockCount() const { return mRedraw.LockCount(); }

  bool HasFocus() const { return mHasFocus; }
  void SetFocus();

  // Starts editing the selected node's label: raises BeforeLabelEdit, which may cancel.
  void StartLabelEdit();
  TreeNode* EditingNode() const { return mEditing; }

  // The tree as indented lines: "+ " or "- " before a collapsed or expanded node with children,
  // "[x] " or "[ ] " in check-box mode, "*" before the text of a bold node.
  QString Dump(const TreeDumpOptions& options = {}) const;

  // What a person does. A click presses and releases the mouse on the node, selects it and
  // raises MouseDown, MouseUp, NodeClick, Click.
  void userClick(TreeNode* node);
  // The clicks, then DblClick and NodeDblClick, then the node opens or closes.
  void userDoubleClick(TreeNode* node);
  // The expander of a node with children: Expanding (may cancel) then Expand; or Collapse.
  void userExpand(TreeNode* node);
  void userCollapse(TreeNode* node);
  // The node's check box, in check-box mode: the tick flips, then NodeCheck.
  void userToggleCheck(TreeNode* node);
  // KeyDown, the key's own action, KeyPress for a key that types a character, KeyUp. A KeyDown
  // handler that sets the key code to 0 stops the action. Actions: Up and Down move the
  // selection (raising NodeClick), Left closes or goes to the parent, Right opens or goes to the
  // first child, Space flips the selected node's tick in check-box mode.
  void userPressKey(int keyCode, int shift = 0);
  // Types a new label and presses Enter: begins editing when the tree allows it (Automatic mode
  // or after StartLabelEdit), raises AfterLabelEdit and applies the text unless cancelled.
  bool userEditLabel(TreeNode* node, const QString& text);
  // Escape while editing: AfterLabelEdit with a null string; the text stays.
  void userCancelLabelEdit();

 signals:
  void Expanding(sv::TreeNode* node, bool* cancel);
  void Expand(sv::TreeNode* node);
  void Collapse(sv::TreeNode* node);
  void NodeClick(sv::TreeNode* node);
  void NodeDblClick(sv::TreeNode* node);
  void NodeCheck(sv::TreeNode* node);
  void Click();
  void DblClick();
  void MouseDown(int button, int shift, double x, double y);
  void MouseUp(int button, int shift, double x, double y);
  void MouseMove(int button, int shift, double x, double y);
  void KeyDown(int* keyCode, int shift);
  void KeyPress(int* keyAscii);
  void KeyUp(int* keyCode, int shift);
  void BeforeLabelEdit(bool* cancel);
  void AfterLabelEdit(bool* cancel, QString* newString);

  // For renderers: the state changed.
  void nodeAdded(sv::TreeNode* node);
  void nodeAboutToBeRemoved(sv::TreeNode* node);
  void nodeMoved(sv::TreeNode* node);
  void nodeChanged(sv::TreeNode* node);
  void nodesCleared();
  void selectionChanged(sv::TreeNode* node);
  void checkBoxesChanged(bool checkBoxes);
  void redrawChanged(bool redraw);
  void focusRequested();

 private:
  friend class TreeNode;

  NodeKey fold(const QString& key) const { return NodeKey{key, mKeysIgnoreCase}; }
  void checkOwned(const TreeNode* node) const;
  std::pair<TreeNode*, std::size_t> placeFor(TreeNode* relative, TreeRelationship relationship);
  TreeNode* insert(TreeNode* parent, std::size_t index, std::unique_ptr<TreeNode> node);
  std::unique_ptr<TreeNode> detach(TreeNode* node);
  int unregisterBranch(const TreeNode* node);
  void rekey(TreeNode* node, const QString& key);
  void setNodeExpanded(TreeNode* node, bool value);
  void select(TreeNode* node);
  void selectByKeyboard(TreeNode* node);
  void keyAction(int keyCode);
  bool beginLabelEdit(TreeNode* node);
  void dumpNode(QString& out, const TreeNode* node, int level,
                const TreeDumpOptions& options) const;

  TreeNode mRoot;
  QHash<NodeKey, TreeNode*> mKeys;
  int mCount = 0;
  bool mKeysIgnoreCase = true;
  TreeNode* mSelected = nullptr;
  TreeNode* mEditing = nullptr;
  bool mCheckBoxes = false;
  bool mHasFocus = false;
  LabelEditMode mLabelEdit = LabelEditMode::Automatic;
  QString mPathSeparator = QStringLiteral("\\");
  sv::ImageList* mOwnImages;
  QPointer<sv::ImageList> mSharedImages;
  RedrawSwitch mRedraw;
};

}  // namespace sv
