#include "ui/TreeView.h"

#include "model/Error.h"
#include "ui/Keys.h"

namespace sv {

namespace {

constexpr int LeftButton = 1;

// The node below `node` in what a person sees: its first child when open, else the next
// sibling of it or of the nearest ancestor that has one.
TreeNode* nextVisible(const TreeNode* node) {
  if (node->Expanded() && node->Child()) return node->Child();
  for (; node; node = node->Parent())
    if (TreeNode* next = node->Next()) return next;
  return nullptr;
}

TreeNode* previousVisible(const TreeNode* node) {
  TreeNode* previous = node->Previous();
  if (!previous) return node->Parent();
  while (previous->Expanded() && previous->LastChild()) previous = previous->LastChild();
  return previous;
}

}  // namespace

TreeView::TreeView(QObject* parent)
    : QObject(parent),
      mRoot(this, {}, {}, {}),
      mOwnImages(new sv::ImageList(this)),
      mRedraw([this](bool redraw) { emit redrawChanged(redraw); }) {}

TreeView::~TreeView() = default;

void TreeView::checkOwned(const TreeNode* node) const {
  if (!node || node->mTree != this || node == &mRoot)
    Raise(ErrorNumber::InvalidCall, QStringLiteral("The node does not belong to this tree"));
}

std::pair<TreeNode*, std::size_t> TreeView::placeFor(TreeNode* relative,
                                                     TreeRelationship relationship) {
  if (!relative) {
    if (relationship == TreeRelationship::First) return {&mRoot, 0};
    return {&mRoot, mRoot.mChildren.size()};
  }
  checkOwned(relative);
  TreeNode* parent = relative->mParent;
  switch (relationship) {
    case TreeRelationship::First:
      return {parent, 0};
    case TreeRelationship::Last:
      return {parent, parent->mChildren.size()};
    case TreeRelationship::Next:
      return {parent, relative->mIndex + 1};
    case TreeRelationship::Previous:
      return {parent, relative->mIndex};
    case TreeRelationship::Child:
      return {relative, relative->mChildren.size()};
  }
  Raise(ErrorNumber::InvalidCall, QStringLiteral("Invalid relationship"));
}

TreeNode* TreeView::insert(TreeNode* parent, std::size_t index, std::unique_ptr<TreeNode> node) {
  TreeNode* raw = node.get();
  auto& children = parent->mChildren;
  children.insert(children.begin() + static_cast<std::ptrdiff_t>(index), std::move(node));
  raw->mParent = parent;
  for (std::size_t i = index; i < children.size(); ++i) children[i]->mIndex = i;
  return raw;
}

std::unique_ptr<TreeNode> TreeView::detach(TreeNode* node) {
  auto& children = node->mParent->mChildren;
  const std::size_t index = node->mIndex;
  std::unique_ptr<TreeNode> owned = std::move(children[index]);
  children.erase(children.begin() + static_cast<std::ptrdiff_t>(index));
  for (std::size_t i = index; i < children.size(); ++i) children[i]->mIndex = i;
  node->mParent = nullptr;
  return owned;
}

TreeNode* TreeView::Add(TreeNode* relative, TreeRelationship relationship, const QString& key,
                        const QString& text, const QString& image) {
  auto [parent, index] = placeFor(relative, relationship);
  // One hash probe: the slot is made empty and filled once the node exists.
  TreeNode** slot = nullptr;
  if (!key.isEmpty()) {
    slot = &mKeys[fold(key)];
    if (*slot) Raise(ErrorNumber::DuplicateKey, QStringLiteral("Key is not unique in collection"));
  }
  TreeNode* node =
      insert(parent, index, std::unique_ptr<TreeNode>(new TreeNode(this, key, text, image)));
  if (slot) *slot = node;
  ++mCount;
  emit nodeAdded(node);
  return node;
}

void TreeView::ReserveKeys(int count) {
  if (count > 0) mKeys.reserve(mKeys.size() + count);
}

TreeNode* TreeView::AddChild(TreeNode* parent, const QString& key, const QString& text,
                             const QString& image) {
  return Add(parent, parent ? TreeRelationship::Child : TreeRelationship::Last, key, text, image);
}

int TreeView::unregisterBranch(const TreeNode* node) {
  if (!node->mKey.isEmpty()) mKeys.remove(fold(node->mKey));
  int removed = 1;
  for (const auto& child : node->mChildren) removed += unregisterBranch(child.get());
  return removed;
}

void TreeView::Remove(TreeNode* node) {
  checkOwned(node);
  TreeNode* selection = mSelected;
  if (node->Contains(mSelected)) {
    selection = node->Next() ? node->Next() : node->Parent();
    if (!selection) selection = node->Previous();
  }
  if (node->Contains(mEditing)) mEditing = nullptr;
  emit nodeAboutToBeRemoved(node);
  mCount -= unregisterBranch(node);
  detach(node);
  select(selection);
}

void TreeView::Remove(const QString& key) {
  Remove(Item(key));
}

void TreeView::Clear() {
  mRoot.mChildren.clear();
  mKeys.clear();
  mCount = 0;
  mEditing = nullptr;
  emit nodesCleared();
  select(nullptr);
}

void TreeView::Move(TreeNode* node, TreeNode* relative, TreeRelationship relationship) {
  checkOwned(node);
  if (node->Contains(relative))
    Raise(ErrorNumber::InvalidCall, QStringLiteral("A node cannot be moved into its own branch"));
  std::unique_ptr<TreeNode> owned = detach(node);
  auto [parent, index] = placeFor(relative, relationship);
  insert(parent, index, std::move(owned));
  emit nodeMoved(node);
}

TreeNode* TreeView::Item(const QString& key) const {
  TreeNode* node = Find(key);
  if (!node) Raise(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Element not found"));
  return node;
}

std::vector<TreeNode*> TreeView::AllNodes() const {
  std::vector<TreeNode*> nodes;
  nodes.reserve(static_cast<std::size_t>(mCount));
  std::vector<const TreeNode*> stack{&mRoot};
  while (!stack.empty()) {
    const TreeNode* node = stack.back();
    stack.pop_back();
    for (auto it = node->mChildren.rbegin(); it != node->mChildren.rend(); ++it)
      stack.push_back(it->get());
    if (node != &mRoot) nodes.push_back(const_cast<TreeNode*>(node));
  }
  return nodes;
}

void TreeView::setKeysIgnoreCase(bool value) {
  if (value == mKeysIgnoreCase) return;
  if (mCount > 0)
    Raise(ErrorNumber::InvalidCall, QStringLiteral("Key comparison can change only while empty"));
  mKeysIgnoreCase = value;
}

void TreeView::rekey(TreeNode* node, const QString& key) {
  const NodeKey folded = fold(key);
  TreeNode* holder = mKeys.value(folded);
  if (!key.isEmpty() && holder && holder != node)
    Raise(ErrorNumber::DuplicateKey, QStringLiteral("Key is not unique in collection"));
  if (!node->mKey.isEmpty()) mKeys.remove(fold(node->mKey));
  node->mKey = key;
  if (!key.isEmpty()) mKeys.insert(folded, node);
  node->changed();
}

void TreeView::select(TreeNode* node) {
  if (node == mSelected) return;
  mSelected = node;
  emit selectionChanged(node);
}

void TreeView::setSelectedItem(TreeNode* node) {
  if (node) checkOwned(node);
  select(node);
}

void TreeView::setCheckBoxes(bool value) {
  if (value == mCheckBoxes) return;
  mCheckBoxes = value;
  emit checkBoxesChanged(value);
}

sv::ImageList* TreeView::ImageList() const {
  return mSharedImages ? mSharedImages.data() : mOwnImages;
}

void TreeView::SetFocus() {
  mHasFocus = true;
  emit focusRequested();
}

void TreeView::setNodeExpanded(TreeNode* node, bool value) {
  if (node->mExpanded == value) return;
  if (node->mChildren.empty()) {
    node->mExpanded = value;
    node->changed();
    return;
  }
  if (!value) {
    node->mExpanded = false;
    node->changed();
    emit Collapse(node);
    return;
  }
  bool cancel = false;
  emit Expanding(node, &cancel);
  // The handler may have loaded the children, removed them all, or opened the node itself.
  if (cancel || node->mExpanded || node->mChildren.empty()) return;
  node->mExpanded = true;
  node->changed();
  emit Expand(node);
}

void TreeView::userClick(TreeNode* node) {
  checkOwned(node);
  SetFocus();
  emit MouseDown(LeftButton, 0, 0, 0);
  select(node);
  emit MouseUp(LeftButton, 0, 0, 0);
  emit NodeClick(node);
  emit Click();
}

void TreeView::userDoubleClick(TreeNode* node) {
  userClick(node);
  emit DblClick();
  emit NodeDblClick(node);
  if (!node->mChildren.empty()) setNodeExpanded(node, !node->mExpanded);
}

void TreeView::userExpand(TreeNode* node) {
  checkOwned(node);
  if (!node->mChildren.empty()) setNodeExpanded(node, true);
}

void TreeView::userCollapse(TreeNode* node) {
  checkOwned(node);
  if (!node->mChildren.empty()) setNodeExpanded(node, false);
}

void TreeView::userToggleCheck(TreeNode* node) {
  checkOwned(node);
  if (!mCheckBoxes) return;
  node->setChecked(!node->mChecked);
  emit NodeCheck(node);
}

void TreeView::selectByKeyboard(TreeNode* node) {
  if (!node) return;
  select(node);
  emit NodeClick(node);
}

void TreeView::keyAction(int keyCode) {
  TreeNode* node = mSelected;
  if (!node) {
    if (keyCode == KeyCode::Up || keyCode == KeyCode::Down) selectByKeyboard(FirstNode());
    return;
  }
  switch (keyCode) {
    case KeyCode::Down:
      selectByKeyboard(nextVisible(node));
      return;
    case KeyCode::Up:
      selectByKeyboard(previousVisible(node));
      return;
    case KeyCode::Left:
      if (node->mExpanded && node->Child())
        setNodeExpanded(node, false);
      else
        selectByKeyboard(node->Parent());
      return;
    case KeyCode::Right:
      if (!node->Child()) return;
      if (node->mExpanded)
        selectByKeyboard(node->Child());
      else
        setNodeExpanded(node, true);
      return;
    case KeyCode::Space:
      userToggleCheck(node);
      return;
    default:
      return;
  }
}

void TreeView::userPressKey(int keyCode, int shift) {
  int code = keyCode;
  emit KeyDown(&code, shift);
  if (code != 0) keyAction(code);
  int ascii = KeyAscii(code, shift);
  if (ascii != 0) emit KeyPress(&ascii);
  int upCode = keyCode;
  emit KeyUp(&upCode, shift);
}

bool TreeView::beginLabelEdit(TreeNode* node) {
  bool cancel = false;
  emit BeforeLabelEdit(&cancel);
  if (cancel) return false;
  mEditing = node;
  return true;
}

void TreeView::StartLabelEdit() {
  if (mSelected) beginLabelEdit(mSelected);
}

bool TreeView::userEditLabel(TreeNode* node, const QString& text) {
  checkOwned(node);
  if (mEditing != node) {
    if (mLabelEdit == LabelEditMode::Manual) return false;
    select(node);
    if (!beginLabelEdit(node)) return false;
  }
  mEditing = nullptr;
  bool cancel = false;
  QString newString = text;
  emit AfterLabelEdit(&cancel, &newString);
  if (cancel) return false;
  node->setText(newString);
  return true;
}

void TreeView::userCancelLabelEdit() {
  if (!mEditing) return;
  mEditing = nullptr;
  bool cancel = false;
  QString none;
  emit AfterLabelEdit(&cancel, &none);
}

void TreeView::dumpNode(QString& out, const TreeNode* node, int level,
                        const TreeDumpOptions& options) const {
  out += QString(level * 2, QLatin1Char(' '));
  if (node->Child()) out += node->mExpanded ? QStringLiteral("- ") : QStringLiteral("+ ");
  if (mCheckBoxes) out += node->mChecked ? QStringLiteral("[x] ") : QStringLiteral("[ ] ");
  if (node->mBold) out += QLatin1Char('*');
  out += node->mText;
  if (options.images && !node->mImage.isEmpty()) {
    out += QStringLiteral(" {") + node->mImage;
    if (!node->mExpandedImage.isEmpty()) out += QLatin1Char('/') + node->mExpandedImage;
    out += QLatin1Char('}');
  }
  if (options.keys && !node->mKey.isEmpty()) out += QStringLiteral(" <") + node->mKey + '>';
  out += QLatin1Char('\n');
  if (options.depth >= 0 && level + 1 >= options.depth) return;
  if (options.visibleOnly && !node->mExpanded) return;
  for (const auto& child : node->mChildren) dumpNode(out, child.get(), level + 1, options);
}

QString TreeView::Dump(const TreeDumpOptions& options) const {
  QString out;
  if (options.from) {
    dumpNode(out, options.from, 0, options);
    return out;
  }
  for (const auto& node : mRoot.mChildren) dumpNode(out, node.get(), 0, options);
  return out;
}

}  // namespace sv
