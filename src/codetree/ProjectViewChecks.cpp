// ProjectView: ticks, the flags they write on items, and Exclusions.
#include "codetree/ProjectView.h"

#include "foundation/ErrorTrap.h"
#include "foundation/IgnoreErrors.h"
#include "foundation/modMain.h"
#include "model/CodeItem.h"
#include "model/Error.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceProvider.h"

namespace sv {

namespace {

// A group folder is the one kind of node without a tag (placeholders aside).
bool isFolder(const TreeNode* node) {
  return node->Tag().isEmpty();
}

}  // namespace

// Exclusions changes run as "errors ignored" steps: adding a present key or removing an absent
// one is no failure. Testing first keeps exceptions out of loops over whole branches.
void ProjectView::addExclusion(const QString& key) {
  StringCollection& entries = exclusions();
  if (!key.isEmpty() && !entries.Contains(key)) entries.Add(key, key);
}

void ProjectView::removeExclusion(const QString& key) {
  if (isExcluded(key)) mExclusions->Remove(key);
}

bool ProjectView::isExcluded(const QString& key) const {
  const StringCollection& entries = exclusions();
  // Most trees exclude nothing; an empty collection needs no folded key.
  return !entries.IsEmpty() && entries.Contains(key);
}

void ProjectView::setExclusions(const std::shared_ptr<StringCollection>& value) {
  Trap(this, "Exclusions", [&] { mExclusions = value; });
}

bool ProjectView::IsNodeChecked(const TreeNode* node) const {
  return Trap(this, "IsNodeChecked", [&] {
    if (!node) RaiseObjectRequired();
    return node->Checked();
  });
}

void ProjectView::setIsNodeChecked(TreeNode* node, bool value) {
  Trap(this, "IsNodeChecked", [&] {
    if (!node) RaiseObjectRequired();
    node->setChecked(value);
  });
}

void ProjectView::NodeChecked(TreeNode* node) {
  Trap(this, "NodeChecked", [&] { nodeChecked(node); });
}

// Answers the tick it passed on to the node's children, or nothing when it passed none on.
std::optional<bool> ProjectView::nodeChecked(TreeNode* node,
                                             const std::shared_ptr<CodeItem>& known) {
  if (!node) return std::nullopt;
  if (isFolder(node)) {
    if (!node->Expanded()) nodeExpanded(node);
    setChildrenChecked(node, node->Checked());
    return node->Checked();
  }
  if (!mSupportsSelection) return std::nullopt;

  const auto nd = definitionOf(*node);
  sv::PrepNamespaceDef(*nd);
  const auto np = providerOf(*nd);
  if (!np) RaiseObjectRequired();
  const QString qName = node->Key();
  SV_TRAP_LOCAL(qName);
  TreeNode* parent = node->Parent();

  if (parent && isFolder(parent)) {
    if (!parent->Checked() && node->Checked())
      parent->setChecked(true);
    else if (parent->Checked() && !node->Checked() && allUnticked(parent))
      parent->setChecked(false);
  }
  // Ticking one child of an unticked item brings the item back with its other children out.
  if (parent && !isFolder(parent) && !parent->Checked() && node->Checked()) {
    setItemExcludeValue(*np, parent->Key(), false);
    parent->setChecked(true);
    excludeSiblingNodes(*np, node);
  }
  if (!nd->CanExclude() && !node->Checked()) {
    node->setChecked(true);
    return std::nullopt;
  }

  const bool tick = node->Checked();
  const auto obj = known ? known : np->GetItem(qName);
  if (!obj) RaiseObjectRequired();
  obj->setIncludeFlag(tick);
  obj->setExcludeFlag(!tick);
  if (tick)
    removeExclusion(qName);
  else if (!parent)
    addExclusion(qName);
  else if (!parent->Checked() && !isFolder(parent))
    removeExclusion(qName);  // the parent's own entry covers the branch
  else
    addExclusion(qName);

  setChildrenChecked(node, tick);
  return tick;
}

void ProjectView::SetChildrenChecked(TreeNode* node, bool value) {
  Trap(this, "SetChildrenChecked", [&] {
    if (!node) RaiseObjectRequired();
    setChildrenChecked(node, value);
  });
}

void ProjectView::setChildrenChecked(TreeNode* node, bool value) {
  const bool parentCovers = !node->Checked() && !isFolder(node);
  for (int index = 0; index < node->ChildCount(); ++index) {
    TreeNode* cn = node->Children().Item(index);
    cn->setChecked(value);
    const std::optional<bool> passedOn = nodeChecked(cn);
    if (value || parentCovers)
      removeExclusion(cn->Key());
    else
      addExclusion(cn->Key());
    // A branch that nodeChecked has just given the same tick would come out the same again.
    if (cn->ChildCount() > 0 && passedOn != value) setChildrenChecked(cn, value);
  }
}

bool ProjectView::allUnticked(const TreeNode* folder) {
  const int count = folder->ChildCount();
  if (count == 0) return true;
  int& hint = mTickedHints[folder];
  const TreeNode::ChildList children = folder->Children();
  for (int step = 0; step < count; ++step) {
    const int index = (hint + step) % count;
    if (children.Item(index)->Checked()) {
      hint = index;
      return false;
    }
  }
  return true;
}

void ProjectView::SetItemExcludeValue(const std::shared_ptr<NamespaceProvider>& np,
                                      const QString& qName, bool value) {
  Trap(this, "SetItemExcludeValue",
       [&] {
         if (!np) RaiseObjectRequired();
         setItemExcludeValue(*np, qName, value);
       },
       {{"qName", qName}, {"Value", value}});
}

void ProjectView::setItemExcludeValue(NamespaceProvider& np, const QString& qName, bool value) {
  const auto obj = np.GetItem(qName);
  if (value)
    addExclusion(qName);
  else
    removeExclusion(qName);
  // A sibling may be a group folder, or a placeholder while its parent loads: no item to mark.
  if (!obj) return;
  obj->setIncludeFlag(!value);
  obj->setExcludeFlag(value);
}

void ProjectView::ExcludeSiblingNodes(const std::shared_ptr<NamespaceProvider>& np, TreeNode* n) {
  Trap(this, "ExcludeSiblingNodes", [&] {
    if (!np || !n) RaiseObjectRequired();
    excludeSiblingNodes(*np, n);
  });
}

void ProjectView::excludeSiblingNodes(NamespaceProvider& np, TreeNode* n) {
  TreeNode* parent = n->Parent();
  const TreeNode::ChildList siblings = parent ? parent->Children() : mTree->TopNodes();
  for (TreeNode* sibling : siblings)
    if (sibling != n) setItemExcludeValue(np, sibling->Key(), true);
}

void ProjectView::CheckAll() {
  Trap(this, "CheckAll", [&] {
    for (int index = 0; index < mTree->TopNodes().Count(); ++index) {
      TreeNode* top = mTree->TopNodes().Item(index);
      setChildrenChecked(top, true);
      removeExclusion(top->Key());
    }
  });
}

void ProjectView::UnCheckAll() {
  Trap(this, "UnCheckAll", [&] {
    for (int index = 0; index < mTree->TopNodes().Count(); ++index)
      setChildrenChecked(mTree->TopNodes().Item(index), false);
  });
}

void ProjectView::CheckByAccess(const QString& access) {
  Trap(this, "CheckByAccess",
       [&] {
         for (TreeNode* node : mTree->AllNodes()) {
           if (isFolder(node)) continue;
           const auto itemAccess = IgnoreErrors([&] {
             const auto np = providerOf(*definitionOf(*node));
             const auto item = np ? np->GetItem(node->Key()) : nullptr;
             if (!item) RaiseObjectRequired();
             return item->Access();
           });
           if (!itemAccess || !*itemAccess) continue;
           node->setChecked(itemAccess->value().compare(access, Qt::CaseInsensitive) == 0);
           nodeChecked(node);
         }
       },
       {{"Access", access}});
}

bool ProjectView::CanSetRoot(TreeNode* node) {
  return Trap(this, "CanSetRoot", [&] {
    if (!node) RaiseObjectRequired();
    if (isFolder(node)) return false;
    return definitionOf(*node)->Flags().contains(QLatin1Char('r'));
  });
}

void ProjectView::SetRoot(TreeNode* node, bool isRoot) {
  Trap(this, "SetRoot",
       [&] {
         if (node && !definitionOf(*node)->Flags().contains(QLatin1Char('r'))) return;
         TreeNode* parent = node ? node->Parent() : nullptr;
         const TreeNode::ChildList siblings = parent ? parent->Children() : mTree->TopNodes();
         for (TreeNode* sibling : siblings) {
           if (isFolder(sibling)) continue;
           const auto np = providerOf(*definitionOf(*sibling));
           const auto item = np ? np->GetItem(sibling->Key()) : nullptr;
           if (!item) RaiseObjectRequired();
           const bool root = sibling == node && isRoot;
           item->setRootFlag(root);
           sibling->setBold(root);
         }
       },
       {{"IsRoot", isRoot}});
}

}  // namespace sv
