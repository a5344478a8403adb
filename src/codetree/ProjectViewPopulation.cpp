// ProjectView: filling the tree from definitions and providers.
#include "codetree/ProjectView.h"

#include "codetree/MergedNamespaceDefs.h"
#include "codetree/TreeViewLock.h"
#include "codetree/WaitCursor.h"
#include "foundation/ErrorTrap.h"
#include "foundation/IgnoreErrors.h"
#include "foundation/modMain.h"
#include "model/CodeMember.h"
#include "model/DDP.h"
#include "model/Error.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "model/NamespaceProvider.h"
#include "model/SVProject.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"
#include "model/VBProject.h"

namespace sv {

namespace {

const QString kClosedFolder = QStringLiteral("Closed");
const QString kOpenFolder = QStringLiteral("Open");
constexpr quint32 kPrivateGrey = 0x808080;
// The colour that overlay pictures treat as transparent.
constexpr quint32 kOverlayKeyColour = 0x00FF00;

// A generic type name ("List`1") is captioned without its arity.
QString RemoveGenericSuffix(const QString& name) {
  const qsizetype grave = name.indexOf(QLatin1Char('`'));
  return grave < 0 ? name : name.left(grave);
}

bool isExcludedByComment(const CodeItem& obj) {
  const auto comments = obj.TaggedComments();
  if (!comments) return false;
  for (const auto& comment : *comments)
    if (comment && comment->TagIdentifier().startsWith(QLatin1String("##EXCLUDE"))) return true;
  return false;
}

bool anySelectable(const NamespaceDefs& defs) {
  for (const auto& def : defs)
    if (def && def->Selectable()) return true;
  return false;
}

}  // namespace

void ProjectView::LockTreeView() {
  if (mTreeViewLockCount == 0) mTree->setRedraw(false);
  ++mTreeViewLockCount;
}

void ProjectView::UnlockTreeView() {
  --mTreeViewLockCount;
  if (mTreeViewLockCount == 0) mTree->setRedraw(true);
}

void ProjectView::ClearNodes() {
  mTree->Clear();
  mTickedHints.clear();
  emit NodesCleared();
}

void ProjectView::Clear() {
  Trap(this, "Clear", [&] {
    ClearNodes();
    mRootItems = std::make_shared<ItemCollection>();
  });
}

void ProjectView::LoadFromNamespaceDefs(const std::shared_ptr<sv::NamespaceDefs>& namespaceDefs,
                                        const QString& moniker, bool clear) {
  Trap(this, "LoadFromNamespaceDefs",
       [&] {
         if (!namespaceDefs) RaiseObjectRequired();
         const auto root = GetRootItem(project(), *namespaceDefs, moniker);
         loadRootItem(namespaceDefs, root, clear);
       },
       {{"Moniker", moniker}, {"Clear", clear}});
}

void ProjectView::LoadFromNamespaceRootItem(const std::shared_ptr<sv::NamespaceDefs>& namespaceDefs,
                                            const std::shared_ptr<CodeItem>& rootItem, bool clear) {
  Trap(this, "LoadFromNamespaceRootItem", [&] { loadRootItem(namespaceDefs, rootItem, clear); },
       {{"Clear", clear}});
}

void ProjectView::loadRootItem(const std::shared_ptr<sv::NamespaceDefs>& namespaceDefs,
                               const std::shared_ptr<CodeItem>& rootItem, bool clear) {
  if (!namespaceDefs || !rootItem) RaiseObjectRequired();
  const TreeViewLock lock(*this);
  if (clear) {
    ClearNodes();
    mRootItems = std::make_shared<ItemCollection>();
    mNamespaceDefs = namespaceDefs;
  } else {
    if (!mNamespaceDefs) mNamespaceDefs = std::make_shared<MergedNamespaceDefs>();
    mergeDefinitions(*namespaceDefs);
  }
  std::shared_ptr<NamespaceDef> nd = namespaceDefs->Item(1);
  if (!nd) RaiseObjectRequired();

  const auto owner = nd->Owner();
  const QString viewOptions = owner ? owner->ViewOptionFlags() : QString();
  const auto offer = [&](const char* command, char letter) {
    mDock->Command(QLatin1String(command))
        ->setVisible(viewOptions.contains(QLatin1Char(letter), Qt::CaseInsensitive));
  };
  offer("ShowPrivate", 'p');
  offer("ShowInherited", 'i');
  offer("ShowFriend", 'f');
  offer("ShowProtected", 't');

  sv::PrepNamespaceDef(*nd);
  project().GetNamespaceProvider(nd->ProviderName());

  if (!mRootItems) mRootItems = std::make_shared<ItemCollection>();
  const QString qName = rootItem->QualifiedName().value_or(QString());
  if (mRootItems->Contains(qName)) mRootItems->Remove(qName);
  mRootItems->Add(rootItem, qName);
  AddNamespaceItem(nd, rootItem, nullptr);
}

void ProjectView::mergeDefinitions(const sv::NamespaceDefs& namespaceDefs) {
  for (const auto& def : namespaceDefs) {
    if (!def || mNamespaceDefs->Item(def->Key())) continue;
    mNamespaceDefs->Add(def, def->Key());
  }
}

void ProjectView::prepareSourceProject(VBProject& sourceProject) {
  if (!mSupportsSelection && sourceProject.VBProjectGroup()) {
    sourceProject.setSelectiveLoad(false);
    sourceProject.setLoadAllComponents(true);
  }
  if (const auto components = sourceProject.Components())
    for (const auto& component : *components) component->setIncludeFlag(true);
}

void ProjectView::AddNamespaceItem(std::shared_ptr<NamespaceDef>& nd,
                                   const std::shared_ptr<CodeItem>& obj, TreeNode* parentNode) {
  const TreeViewLock lock(*this);
  if (auto sourceProject = std::dynamic_pointer_cast<VBProject>(obj))
    prepareSourceProject(*sourceProject);
  const QString qName = obj->QualifiedName().value_or(QString());
  SV_TRAP_LOCAL(qName);
  if (mAutoExclude && isExcluded(qName)) return;

  const QString caption = captionOf(nd, obj, parentNode);
  TreeNode* node = addItemNode(*nd, *obj, qName, caption, parentNode);
  if (!node) return;

  if (obj->Access().value_or(QString()).compare(QLatin1String("PRIVATE"), Qt::CaseInsensitive) == 0)
    node->setForeColor(kPrivateGrey);
  node->setTag(nd->TypeMoniker());
  if (mSupportsSelection) {
    node->setBold(obj->RootFlag().value_or(false));
  } else if (mHighlightCommentedItems) {
    const auto comments = obj->TaggedComments();
    node->setBold(comments && comments->Count() > 0);
  }
  setInitialTick(node, *nd, obj, parentNode);
  addPlaceholder(node, *nd);
}

QString ProjectView::captionOf(std::shared_ptr<NamespaceDef>& nd,
                               const std::shared_ptr<CodeItem>& obj, TreeNode* parentNode) {
  if (nd->CaptionExpression().isEmpty())
    return RemoveGenericSuffix(obj->Name().value_or(QString()));
  const auto np = providerOf(*nd);
  const auto ddp = np ? np->DDP() : nullptr;
  if (!ddp) RaiseObjectRequired();
  if (!parentNode) {
    // A top item keeps an empty caption here; only its definition is resolved.
    nd = ddp->ResolveNamespaceDef(nd, obj, nd->TypeMoniker(), nullptr);
    if (!nd) RaiseObjectRequired();
    return {};
  }
  const auto parentObj = np->GetItem(parentNode->Key());
  if (!parentNode->Parent()) ddp->SetParentContext(parentObj);
  nd = ddp->ResolveNamespaceDef(nd, obj, nd->TypeMoniker(), parentObj);
  if (!nd) RaiseObjectRequired();
  return ddp->EvaluateCaption(nd->CaptionExpression());
}

TreeNode* ProjectView::addNodeOnce(TreeNode* parent, const QString& key, const QString& text,
                                   const QString& image) {
  // A key already in the tree loses the node in silence.
  return IgnoreErrors([&] { return mTree->AddChild(parent, key, text, image); }).value_or(nullptr);
}

TreeNode* ProjectView::addItemNode(const NamespaceDef& nd, const CodeItem& obj, const QString& key,
                                   const QString& caption, TreeNode* parentNode) {
  const QString image = GetImageName(nd, obj);
  if (!parentNode) return addNodeOnce(nullptr, key, caption, image);
  const bool groupedHere = mSupportsSelection ? nd.GroupedInSelection() : nd.GroupedInComments();
  if (!groupedHere || !Grouped()) return addNodeOnce(parentNode, key, caption, image);

  const QString folderKey = parentNode->Key() + QLatin1Char('_') + nd.Key();
  TreeNode* folder = mTree->Find(folderKey);
  if (!folder) {
    folder = mTree->AddChild(parentNode, folderKey, nd.GroupCaption(), kClosedFolder);
    folder->setExpandedImage(kOpenFolder);
    folder->setChecked(true);
  }
  return addNodeOnce(folder, key, caption, image);
}

void ProjectView::setInitialTick(TreeNode* node, const NamespaceDef& nd,
                                 const std::shared_ptr<CodeItem>& obj, TreeNode* parentNode) {
  bool tick = false;
  if (!nd.CanExclude())
    tick = true;
  else if (!parentNode || parentNode->Checked())
    tick = !isExcluded(node->Key());
  node->setChecked(tick);
  nodeChecked(node, obj);
}

void ProjectView::addPlaceholder(TreeNode* node, const NamespaceDef& nd) {
  const auto childDefs = nd.ChildDefs();
  if (!childDefs || childDefs->Count() < 1) return;
  if (mSupportsSelection && !anySelectable(*childDefs)) return;
  addNodeOnce(node, node->Key() + kPlaceholderSuffix, {}, {});
  if (nd.LoadChildrenOnAdd()) {
    nodeExpanded(node);
    return;
  }
  if (!nd.PreloadChildren() && !(mSupportsSelection && nd.PreloadChildrenInSelection())) return;
  nodeExpanded(node);
  node->setExpanded(false);
  TreeNode* parent = node->Parent();
  if (parent && parent->Image() == kClosedFolder) parent->setExpanded(false);
}

void ProjectView::NodeExpanded(TreeNode* node) {
  Trap(this, "NodeExpanded", [&] { nodeExpanded(node); });
}

void ProjectView::nodeExpanded(TreeNode* node) {
  if (!node || node->ChildCount() != 1 || !node->Child()->Key().endsWith(kPlaceholderSuffix))
    return;
  const auto nd = definitionOf(*node);
  sv::PrepNamespaceDef(*nd);
  const auto np = providerOf(*nd);
  if (!np) RaiseObjectRequired();
  const QString qName = node->Key();
  SV_TRAP_LOCAL(qName);
  TreeNode* placeholder = node->Child();
  {
    const WaitCursor wait;
    if (!mSupportsSelection) pushVisibilityToProject();
    const TreeViewLock lock(*this);
    const auto item =
        mRootItems && mRootItems->Contains(qName) ? mRootItems->Item(qName) : np->GetItem(qName);
    AddChildNamespaceItems(nd, item, node);
  }
  mTree->Remove(placeholder);
  if (node->ExpandOnLoad() && !node->Expanded()) node->setExpanded(true);
}

void ProjectView::AddChildNamespaceItems(const std::shared_ptr<NamespaceDef>& nd,
                                         const std::shared_ptr<CodeItem>& parentItem, TreeNode* n) {
  if (!parentItem) return;
  if (!mSupportsSelection && parentItem->TypeName() == QLatin1String("Component"))
    parentItem->setIncludeFlag(true);
  const auto np = providerOf(*nd);
  if (!np) RaiseObjectRequired();
  const QString relevantContentFilter = np->GetRelevantContentFilter(parentItem);
  if (!relevantContentFilter.isEmpty()) emit ItemPopulated(parentItem, relevantContentFilter);

  const auto childDefs = nd->ChildDefs();
  if (!childDefs) return;
  QString filter = Filter();
  if (filter.isEmpty()) filter = QStringLiteral("IgnoreNamespaceIncludeFlag=true,includeall=true");
  const bool showPrivate = ShowPrivate();
  for (std::shared_ptr<NamespaceDef> cnd : *childDefs) {
    const QString flags = cnd->Flags();
    if (flags.contains(QLatin1Char('t'))) continue;
    if (mOnlyTopicItems && !flags.contains(QLatin1Char('f'))) continue;
    sv::PrepNamespaceDef(*cnd);
    const auto cnp = providerOf(*cnd);
    if (!cnp) continue;
    if (mSupportsSelection && !cnd->Selectable()) continue;
    const auto col = cnp->GetItems(cnd, parentItem, filter);
    if (!col) continue;
    // Each item may bring a placeholder for its own children.
    mTree->ReserveKeys(2 * col->Count());
    for (const auto& item : *col) {
      // Comment mode drops hidden members whatever the provider's filter let through.
      const bool member = std::dynamic_pointer_cast<CodeMember>(item) != nullptr;
      if (!mSupportsSelection && member && !showPrivate &&
          item->Access().value_or(QString()).toUpper() != QLatin1String("PUBLIC"))
        continue;
      // The definition is passed on as the add may resolve it, and the next items start
      // from what it resolved to.
      AddNamespaceItem(cnd, item, n);
    }
  }
}

QString ProjectView::GetImageName(const NamespaceDef& nd, const CodeItem& obj) const {
  const QString base = nd.ImageName();
  if (!mSupportsSelection && isExcludedByComment(obj)) return base + QStringLiteral("_excluded");
  const QString access = obj.Access().value_or(QString());
  if (access.isEmpty()) return base;
  const auto is = [&access](const char* word) {
    return access.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
  };
  QString name;
  if (is("private"))
    name = base + QStringLiteral("_private");
  else if (is("protected") || is("protected friend"))
    name = base + QStringLiteral("_protected");
  else if (is("friend"))
    name = base + QStringLiteral("_friend");
  if (name.isEmpty() || !mTree->ImageList()->Exists(name)) return base;
  return name;
}

void ProjectView::UpdateNodeImage(TreeNode* node, const std::shared_ptr<CodeItem>& obj) {
  Trap(this, "UpdateNodeImage", [&] {
    if (!node || !obj) RaiseObjectRequired();
    node->setImage(GetImageName(*definitionOf(*node), *obj));
  });
}

void ProjectView::ensureOverlayPictures(sv::ImageList& images) {
  for (const char* key : {"Closed", "Open", "Protected", "Friend", "Private", "Excluded"})
    if (!images.Exists(QLatin1String(key))) images.Add(QLatin1String(key));
}

void ProjectView::CreateOverlays() {
  if (mOverlaysCreated) return;
  const sv::ImageList& images = *mTree->ImageList();
  const int count = images.Count();
  for (int index = 1; index <= count; ++index) {
    const ImageList::ListImage image = images.Item(index);
    CreateAlternateImages(image, image.Tag == QLatin1String("OVERLAY"));
  }
  mOverlaysCreated = true;
}

void ProjectView::CreateAlternateImages(const ImageList::ListImage& image, bool all) {
  sv::ImageList& images = *mTree->ImageList();
  const quint32 backColour = images.BackColor();
  images.setBackColor(kOverlayKeyColour);
  const auto overlay = [&](const char* suffix, const char* picture) {
    const QString key = image.Key + QLatin1String(suffix);
    if (!images.Exists(key)) images.AddOverlay(key, image.Key, QLatin1String(picture));
  };
  if (all) {
    overlay("_protected", "Protected");
    overlay("_friend", "Friend");
    overlay("_private", "Private");
  }
  if (!mSupportsSelection) overlay("_excluded", "Excluded");
  images.setBackColor(backColour);
}

void ProjectView::Refresh() {
  Trap(this, "Refresh", [&] {
    mTreePath = mTree->SelectedItem() ? GetTreePath() : QString();
    pushVisibilityToProject();
    const WaitCursor wait;
    const auto oldRootItems = mRootItems;
    mRootItems = std::make_shared<ItemCollection>();
    ClearNodes();
    if (oldRootItems)
      for (const auto& item : *oldRootItems) loadRootItem(mNamespaceDefs, item, true);
    if (!mTreePath.isEmpty()) SetTreePath(mTreePath);
    if (!mTree->SelectedItem() && mTree->FirstNode()) mTree->setSelectedItem(mTree->FirstNode());
  });
}

void ProjectView::HighlightCommentedNodes() {
  Trap(this, "HighlightCommentedNodes", [&] {
    if (!mHighlightCommentedItems) return;
    for (TreeNode* node : mTree->AllNodes()) {
      if (node->Bold() || node->Key().endsWith(kPlaceholderSuffix)) continue;
      if (node->Image() == kClosedFolder || node->Image() == kOpenFolder) continue;
      const auto item = objectFromQualifiedName(node->Key());
      if (!item) continue;
      const auto comments = item->TaggedComments();
      node->setBold(comments && comments->UnDeletedCount() > 0);
    }
  });
}

std::shared_ptr<CodeItem> ProjectView::GetObjectFromQualifiedName(const QString& qualifiedName) {
  return Trap(this, "GetObjectFromQualifiedName",
              [&] { return objectFromQualifiedName(qualifiedName); },
              {{"QualifiedName", qualifiedName}});
}

std::shared_ptr<CodeItem> ProjectView::objectFromQualifiedName(const QString& qualifiedName) {
  if (!mNamespaceDefs || mNamespaceDefs->Count() < 1) RaiseObjectRequired();
  const auto np = providerOf(*mNamespaceDefs->Item(1));
  if (!np) RaiseObjectRequired();
  return np->GetItem(qualifiedName);
}

}  // namespace sv
