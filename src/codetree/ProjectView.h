#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <memory>
#include <optional>

#include "foundation/Dumpable.h"
#include "model/ModelTypes.h"
#include "ui/Dock.h"
#include "ui/TreeView.h"

namespace sv {

class CodeItem;
class NamespaceDef;
class NamespaceDefs;
class NamespaceProvider;
class ProjectViewSettings;
class SVProject;
class VBProject;

// The code model of a project as a tree. Definitions (NamespaceDefs) say which kinds of item
// exist and how each is drawn; the project's providers hand out the items. Children are fetched
// only when a node opens, through a placeholder child. In selection mode the tree has check
// boxes that decide what the documentation includes and keep Exclusions in step; in comment
// mode it is the navigator of the comment editor and shows commented items in bold.
//
// The class is split by topic: ProjectView.cpp (properties, toolbar, events),
// ProjectViewPopulation.cpp, ProjectViewChecks.cpp and ProjectViewNavigation.cpp.
class ProjectView : public QObject, public Dumpable {
  Q_OBJECT

 public:
  // The key of the placeholder child that stands for children not loaded yet ends with this.
  static inline const QString kPlaceholderSuffix = QStringLiteral("_dummy");

  explicit ProjectView(QObject* parent = nullptr);
  ~ProjectView() override;

  QString ModuleName() const override { return QStringLiteral("ProjectView"); }
  QString DumpMembers() const override;

  // The child controls, for renderers and tests.
  TreeView* tvwProject() const { return mTree; }
  sv::Dock* dksProjectView() const { return mDock; }

  // A new control gets its initial properties; a saved one reads its property bag. Both make
  // the access and exclusion images, so SupportsSelection must be settled before.
  void InitProperties();
  void ReadProperties(const QVariantMap& bag);
  void WriteProperties(QVariantMap& bag) const;
  // Drops the model references the control holds.
  void Terminate();

  // --- Population -------------------------------------------------------------------------
  QString AppName() const;
  // Chooses the settings branch and shows the toolbar toggles as the settings stand.
  void setAppName(const QString& value);
  std::shared_ptr<sv::SVProject> SVProject() const { return mSVProject; }
  void setSVProject(const std::shared_ptr<sv::SVProject>& value);
  bool SupportsSelection() const { return mSupportsSelection; }
  void setSupportsSelection(bool value);
  bool HighlightCommentedItems() const { return mHighlightCommentedItems; }
  void setHighlightCommentedItems(bool value);
  // The string handed to providers: the assigned filter (which brings its own trailing comma),
  // then the scope and the inherited switch.
  QString Filter() const;
  // Stores the filter; nothing reloads.
  void setFilter(const QString& value);
  QString SpecificFilter() const { return mFilter; }
  bool ShowInherited() const { return mShowInherited; }
  void setShowInherited(bool value);
  bool ShowAllPropertyBlocks() const { return mShowAllPropertyBlocks; }
  void setShowAllPropertyBlocks(bool value);
  // Shared by every tree of the process: they read and write the application's view settings.
  bool ShowPrivate() const;
  void setShowPrivate(bool value);
  bool ShowFriend() const;
  void setShowFriend(bool value);
  bool ShowProtected() const;
  void setShowProtected(bool value);
  bool AutoExpandChildren() const;
  void setAutoExpandChildren(bool value);
  bool Grouped() const;
  void setGrouped(bool value);
  // A second name of Grouped.
  bool FolderView() const { return Grouped(); }
  void setFolderView(bool value) { setGrouped(value); }
  // Only definitions with flag "f" get child nodes.
  bool OnlyTopicItems() const { return mOnlyTopicItems; }
  void setOnlyTopicItems(bool value) { mOnlyTopicItems = value; }
  // Items listed in Exclusions get no node at all.
  bool AutoExclude() const { return mAutoExclude; }
  void setAutoExclude(bool value) { mAutoExclude = value; }
  bool Enabled() const { return mEnabled; }
  void setEnabled(bool value) { mEnabled = value; }

  std::shared_ptr<sv::NamespaceDefs> NamespaceDefs() const { return mNamespaceDefs; }
  // The item of the top node above the selection; null when nothing is selected.
  std::shared_ptr<CodeItem> CurrentRootItem();
  // The picture of an image of the tree's image list.
  QVariant Icon(const QString& name) const;
  sv::ImageList* ImageList() const { return mTree->ImageList(); }
  // Another list for the tree; the overlay pictures are added to it when it lacks them.
  void setImageList(sv::ImageList* images);

  void LoadFromNamespaceDefs(const std::shared_ptr<sv::NamespaceDefs>& namespaceDefs,
                             const QString& moniker, bool clear);
  void LoadFromNamespaceRootItem(const std::shared_ptr<sv::NamespaceDefs>& namespaceDefs,
                                 const std::shared_ptr<CodeItem>& rootItem, bool clear);
  // Rebuilds the tree, keeping the open path and the selection. Each root reload clears the
  // tree, so a view of several roots comes back with the last one.
  void Refresh();
  // Makes nodes of items with undeleted comments bold; never takes bold away.
  void HighlightCommentedNodes();
  void Clear();
  void UpdateNodeImage(TreeNode* node, const std::shared_ptr<CodeItem>& obj);
  // Replaces a node's placeholder with its children; any other node is left alone.
  void NodeExpanded(TreeNode* node);
  // The item of a key, from the provider of the first definition, which answers for all nodes.
  std::shared_ptr<CodeItem> GetObjectFromQualifiedName(const QString& qualifiedName);
  void PrepNamespaceDef(const std::shared_ptr<NamespaceDef>& nd);

  // --- Checks and exclusions ----------------------------------------------------------------
  // Excluded items (and group folders) by qualified name: key and value are the same string.
  std::shared_ptr<StringCollection> Exclusions() const { return mExclusions; }
  void setExclusions(const std::shared_ptr<StringCollection>& value);
  // The raw tick, without consequences.
  bool IsNodeChecked(const TreeNode* node) const;
  void setIsNodeChecked(TreeNode* node, bool value);
  // Applies a tick that has just changed: flags on the item, Exclusions, family ticks.
  void NodeChecked(TreeNode* node);
  void SetChildrenChecked(TreeNode* node, bool value);
  void ExcludeSiblingNodes(const std::shared_ptr<NamespaceProvider>& np, TreeNode* n);
  void SetItemExcludeValue(const std::shared_ptr<NamespaceProvider>& np, const QString& qName,
                           bool value);
  void CheckAll();
  // Clears every tick below the top nodes; the top nodes stay ticked.
  void UnCheckAll();
  void CheckByAccess(const QString& access);
  // One root among siblings: the given node's item becomes the root (or none), all its
  // siblings lose the flag.
  void SetRoot(TreeNode* node, bool isRoot);
  bool CanSetRoot(TreeNode* node);
  // When set, the tree's key-up flips the tick of ReverseCheckNode.
  bool ReverseCheck() const { return mReverseCheck; }
  void setReverseCheck(bool value) { mReverseCheck = value; }
  TreeNode* ReverseCheckNode() const { return mReverseCheckNode; }
  void setReverseCheckNode(TreeNode* node) { mReverseCheckNode = node; }

  // --- Navigation, search, commands ---------------------------------------------------------
  // Selects the node of a qualified name, loading only the nodes on its path; false when the
  // name is not in the tree.
  bool SelectItem(const QString& qualifiedName);
  // The same, but selects the deepest node found on the path.
  bool SelectNearestItem(const QString& qualifiedName);
  bool InternalSelectItem(const QString& qualifiedName, bool selectNearestIfNoMatch);
  void NextItem(bool unCommented);
  void PreviousItem(bool unCommented);
  // Walks in reading order, loading branches as it meets them; skips closed group folders and,
  // with the flag, bold (commented) nodes.
  void MoveToNextItem(bool skipBold);
  void MoveToPreviousItem(bool onlyNonBold);
  // The open nodes and the selection as text, and back.
  QString GetTreePath();
  void SetTreePath(const QString& path);
  TreeNode* SelectedItem() const { return mTree->SelectedItem(); }
  void setSelectedItem(TreeNode* node);
  TreeView* Nodes() const { return mTree; }
  void StartLabelEdit();
  // Searches the node texts after the selection for the text of "FindValue", wrapping once.
  void FindNow();
  // For a tree that is only a picker.
  void HideEditButtons();
  bool CopyCommentsEnabled() const;
  void setCopyCommentsEnabled(bool value);
  bool PasteCommentsEnabled() const;
  void setPasteCommentsEnabled(bool value);
  int ToolbarStyle() const { return mToolbarStyle; }
  void setToolbarStyle(int value);

 signals:
  void NodesCleared();
  void ItemPopulated(std::shared_ptr<sv::CodeItem> item, QString relevantContentFilter);
  // Declared for hosts; nothing raises it.
  void Reloaded();
  void NodeCheck(sv::TreeNode* node);
  void Change();
  void NodeClick(sv::TreeNode* node);
  void PropertiesRequested();
  void CopyCommentsRequested();
  void PasteCommentsRequested();
  void AfterCommand();
  void KeyUp(int* keyCode, int shift);
  void AfterLabelEdit(bool* cancel, QString* newString);
  void BeforeLabelEdit(bool* cancel);
  void Click();
  void Collapse(sv::TreeNode* node);
  void DblClick();
  void Expand(sv::TreeNode* node);
  void KeyDown(int* keyCode, int shift);
  void KeyPress(int* keyAscii);
  void MouseMove(int button, int shift, double x, double y);
  void NodeDblClick(sv::TreeNode* node);

 private:
  friend class TreeViewLock;

  void createToolbar();
  void connectTree();
  ProjectViewSettings& viewSettings() const;
  sv::SVProject& project() const;
  StringCollection& exclusions() const;
  std::shared_ptr<NamespaceProvider> providerOf(const NamespaceDef& nd) const;
  std::shared_ptr<NamespaceDef> definitionOf(const TreeNode& node) const;
  void pushVisibilityToProject();

  // Population (ProjectViewPopulation.cpp).
  void LockTreeView();
  void UnlockTreeView();
  void ClearNodes();
  void loadRootItem(const std::shared_ptr<sv::NamespaceDefs>& namespaceDefs,
                    const std::shared_ptr<CodeItem>& rootItem, bool clear);
  void mergeDefinitions(const sv::NamespaceDefs& namespaceDefs);
  void AddNamespaceItem(std::shared_ptr<NamespaceDef>& nd, const std::shared_ptr<CodeItem>& obj,
                        TreeNode* parentNode);
  void prepareSourceProject(VBProject& project);
  QString captionOf(std::shared_ptr<NamespaceDef>& nd, const std::shared_ptr<CodeItem>& obj,
                    TreeNode* parentNode);
  TreeNode* addItemNode(const NamespaceDef& nd, const CodeItem& obj, const QString& key,
                        const QString& caption, TreeNode* parentNode);
  TreeNode* addNodeOnce(TreeNode* parent, const QString& key, const QString& text,
                        const QString& image);
  void setInitialTick(TreeNode* node, const NamespaceDef& nd, const std::shared_ptr<CodeItem>& obj,
                      TreeNode* parentNode);
  void addPlaceholder(TreeNode* node, const NamespaceDef& nd);
  void nodeExpanded(TreeNode* node);
  void AddChildNamespaceItems(const std::shared_ptr<NamespaceDef>& nd,
                              const std::shared_ptr<CodeItem>& parentItem, TreeNode* n);
  QString GetImageName(const NamespaceDef& nd, const CodeItem& obj) const;
  void CreateOverlays();
  void CreateAlternateImages(const ImageList::ListImage& image, bool all);
  void ensureOverlayPictures(sv::ImageList& images);
  std::shared_ptr<CodeItem> objectFromQualifiedName(const QString& qualifiedName);

  // Checks (ProjectViewChecks.cpp). nodeChecked answers the tick it already passed on to the
  // node's children, so that SetChildrenChecked need not walk the branch twice. A caller that
  // already holds the node's item passes it, which spares the provider a lookup per node.
  std::optional<bool> nodeChecked(TreeNode* node, const std::shared_ptr<CodeItem>& known = {});
  void setChildrenChecked(TreeNode* node, bool value);
  void setItemExcludeValue(NamespaceProvider& np, const QString& qName, bool value);
  void excludeSiblingNodes(NamespaceProvider& np, TreeNode* n);
  bool allUnticked(const TreeNode* folder);
  void addExclusion(const QString& key);
  void removeExclusion(const QString& key);
  bool isExcluded(const QString& key) const;

  // Navigation (ProjectViewNavigation.cpp).
  TreeNode* GetNextNode(TreeNode* n);
  TreeNode* GetPreviousNode(TreeNode* n);
  TreeNode* lastNode() const;
  bool internalSelectItem(const QString& qualifiedName, bool selectNearestIfNoMatch);
  void moveToItem(bool forward, bool skipBold);
  void selectNode(TreeNode* node);
  void runCommand(DockCommand* command);
  bool toggled(DockCommand* command) const;

  // Event handlers.
  void tvwProject_Expanding(TreeNode* node, bool* cancel);
  void tvwProject_NodeClick(TreeNode* node);
  void tvwProject_NodeCheck(TreeNode* node);
  void tvwProject_KeyUp(int* keyCode, int shift);
  void dksProjectView_CommandClick(DockCommand* command);
  void dksProjectView_CommandKeyDown(DockCommand* command, int* keyCode, int shift);

  TreeView* mTree;
  sv::Dock* mDock;
  std::shared_ptr<sv::SVProject> mSVProject;
  std::shared_ptr<sv::NamespaceDefs> mNamespaceDefs;
  std::shared_ptr<StringCollection> mExclusions;
  std::shared_ptr<ItemCollection> mRootItems;
  bool mHighlightCommentedItems = true;
  QString mFilter;
  bool mShowInherited = false;
  bool mShowAllPropertyBlocks = false;
  long mTreeViewLockCount = 0;
  QString mTreePath;
  bool mOverlaysCreated = false;
  bool mOnlyTopicItems = false;
  bool mAutoExclude = false;
  bool mSupportsSelection = false;
  bool mEnabled = true;
  bool mReverseCheck = false;
  TreeNode* mReverseCheckNode = nullptr;
  int mToolbarStyle = 0;
  QVariantMap mAppearance;  // persisted looks of the tree that only renderers read
  // Per group folder, the index of a child last seen ticked: unticking children one by one
  // then costs a constant each instead of a scan of the siblings.
  QHash<const TreeNode*, int> mTickedHints;
};

}  // namespace sv
