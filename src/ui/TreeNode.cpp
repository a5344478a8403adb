#include "ui/TreeNode.h"

#include <QStringList>

#include "model/Error.h"
#include "ui/TreeView.h"

namespace sv {

TreeNode::TreeNode(TreeView* tree, const QString& key, const QString& text, const QString& image)
    : mTree(tree), mKey(key), mText(text), mImage(image) {}

TreeNode::~TreeNode() = default;

TreeNode* TreeNode::ChildList::Item(int index) const {
  if (index < 0 || index >= Count())
    Raise(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
  return mNodes[static_cast<std::size_t>(index)].get();
}

void TreeNode::changed() {
  emit mTree->nodeChanged(this);
}

void TreeNode::setKey(const QString& key) {
  if (key == mKey) return;
  mTree->rekey(this, key);
}

void TreeNode::setText(const QString& text) {
  if (text == mText) return;
  mText = text;
  changed();
}

void TreeNode::setTag(const QString& tag) {
  mTag = tag;
}

void TreeNode::setImage(const QString& key) {
  if (key == mImage) return;
  mImage = key;
  changed();
}

void TreeNode::setExpandedImage(const QString& key) {
  if (key == mExpandedImage) return;
  mExpandedImage = key;
  changed();
}

void TreeNode::setBold(bool value) {
  if (value == mBold) return;
  mBold = value;
  changed();
}

void TreeNode::setForeColor(quint32 value) {
  if (value == mForeColor) return;
  mForeColor = value;
  changed();
}

void TreeNode::setChecked(bool value) {
  if (value == mChecked) return;
  mChecked = value;
  changed();
}

void TreeNode::setExpanded(bool value) {
  mTree->setNodeExpanded(this, value);
}

bool TreeNode::Selected() const {
  return mTree->SelectedItem() == this;
}

void TreeNode::setSelected(bool value) {
  if (value) {
    mTree->setSelectedItem(this);
    return;
  }
  if (Selected()) mTree->setSelectedItem(nullptr);
}

bool TreeNode::IsVisible() const {
  for (const TreeNode* p = Parent(); p; p = p->Parent())
    if (!p->mExpanded) return false;
  return true;
}

void TreeNode::EnsureVisible() {
  std::vector<TreeNode*> ancestors;
  for (TreeNode* p = Parent(); p; p = p->Parent()) ancestors.push_back(p);
  for (auto it = ancestors.rbegin(); it != ancestors.rend(); ++it) (*it)->setExpanded(true);
}

TreeNode* TreeNode::Parent() const {
  return (mParent && mParent->mParent) ? mParent : nullptr;
}

TreeNode* TreeNode::Root() const {
  const TreeNode* node = this;
  while (TreeNode* parent = node->Parent()) node = parent;
  return const_cast<TreeNode*>(node);
}

const std::vector<std::unique_ptr<TreeNode>>& TreeNode::siblings() const {
  return mParent->mChildren;
}

TreeNode* TreeNode::Next() const {
  const auto& list = siblings();
  return mIndex + 1 < list.size() ? list[mIndex + 1].get() : nullptr;
}

TreeNode* TreeNode::Previous() const {
  return mIndex > 0 ? siblings()[mIndex - 1].get() : nullptr;
}

TreeNode* TreeNode::FirstSibling() const {
  return siblings().front().get();
}

TreeNode* TreeNode::LastSibling() const {
  return siblings().back().get();
}

QString TreeNode::FullPath() const {
  QStringList texts;
  for (const TreeNode* node = this; node; node = node->Parent()) texts.prepend(node->mText);
  return texts.join(mTree->PathSeparator());
}

bool TreeNode::Contains(const TreeNode* node) const {
  for (; node; node = node->Parent())
    if (node == this) return true;
  return false;
}

}  // namespace sv
