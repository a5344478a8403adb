#include "codetree/ProjectView.h"

#include "foundation/DumpValue.h"
#include "foundation/ErrorTrap.h"
#include "foundation/modMain.h"
#include "foundation/modProjectView.h"
#include "model/AppSettings.h"
#include "model/Error.h"
#include "model/ModelFactory.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "model/ProjectViewSettings.h"
#include "model/SVProject.h"
#include "ui/Keys.h"
#include "ui/ListHelpers.h"

namespace sv {

namespace {

// Properties of the tree's looks that the host's property bag keeps and renderers read.
const char* const kAppearanceProperties[] = {"Appearance",    "BorderStyle", "Font",
                                             "HideSelection", "Indentation", "LineStyle",
                                             "MouseIcon",     "Scroll",      "Style"};

const QString kFindBar = QStringLiteral("FindBar");

}  // namespace

ProjectView::ProjectView(QObject* parent)
    : QObject(parent),
      mTree(new TreeView(this)),
      mDock(new sv::Dock(this)),
      mExclusions(std::make_shared<StringCollection>()),
      mRootItems(std::make_shared<ItemCollection>()) {
  ensureOverlayPictures(*mTree->ImageList());
  createToolbar();
  connectTree();
  ConfigureForCommonUI(this);
}

ProjectView::~ProjectView() = default;

QString ProjectView::DumpMembers() const {
  std::vector<DumpVariant> exclusions;
  if (mExclusions)
    for (const QString& key : *mExclusions) exclusions.emplace_back(key);
  return DumpValues({
      {"mSVProject", DumpVariant::Object(mSVProject, QStringLiteral("SVProject"))},
      {"mNamespaceDefs", DumpVariant::Object(mNamespaceDefs, QStringLiteral("NamespaceDefs"))},
      {"mExclusions",
       mExclusions ? DumpVariant::Collection(QStringLiteral("Collection"), std::move(exclusions))
                   : DumpVariant::Nothing()},
      {"mRootItems", DumpVariant::Object(mRootItems, QStringLiteral("Collection"))},
      {"mHighlightCommentedItems", mHighlightCommentedItems},
      {"mFilter", mFilter},
      {"mShowInherited", mShowInherited},
      {"mShowAllPropertyBlocks", mShowAllPropertyBlocks},
      {"mTreeViewLockCount", mTreeViewLockCount},
      {"mTreePath", mTreePath},
      {"mOverlaysCreated", mOverlaysCreated},
      {"OnlyTopicItems", mOnlyTopicItems},
      {"AutoExclude", mAutoExclude},
      {"ReverseCheck", mReverseCheck},
  });
}

void ProjectView::createToolbar() {
  DockBand* main = mDock->AddBand(QStringLiteral("ProjectView"));
  DockBand* find = mDock->AddBand(kFindBar, QStringLiteral("Find"));
  struct Entry {
    const char* key;
    DockCommandType type;
    const char* caption;
  };
  const Entry mainCommands[] = {
      {"Previous", DockCommandType::Button, "Previous"},
      {"Next", DockCommandType::Button, "Next"},
      {"Properties", DockCommandType::Button, "Properties"},
      {"AutoExpand", DockCommandType::Check, "Auto Expand"},
      {"ShowPrivate", DockCommandType::Check, "Show Private"},
      {"ShowFriend", DockCommandType::Check, "Show Friend"},
      {"ShowProtected", DockCommandType::Check, "Show Protected"},
      {"ShowInherited", DockCommandType::Check, "Show Inherited"},
      {"Grouped", DockCommandType::Check, "Group by Type"},
      {"Copy", DockCommandType::Button, "Copy Comments"},
      {"Paste", DockCommandType::Button, "Paste Comments"},
      {"Find", DockCommandType::Check, "Find"},
  };
  for (const Entry& entry : mainCommands)
    mDock->AddCommand(QLatin1String(entry.key), entry.type, QLatin1String(entry.caption), main);
  mDock->AddCommand(QStringLiteral("FindValue"), DockCommandType::Edit, {}, find);
  mDock->AddCommand(QStringLiteral("FindNow"), DockCommandType::Button, QStringLiteral("Find Now"),
                    find);
  find->setVisible(false);
  connect(mDock, &Dock::CommandClick, this, &ProjectView::dksProjectView_CommandClick);
  connect(mDock, &Dock::CommandKeyDown, this, &ProjectView::dksProjectView_CommandKeyDown);
}

void ProjectView::connectTree() {
  connect(mTree, &TreeView::Expanding, this, &ProjectView::tvwProject_Expanding);
  connect(mTree, &TreeView::NodeClick, this, &ProjectView::tvwProject_NodeClick);
  connect(mTree, &TreeView::NodeCheck, this, &ProjectView::tvwProject_NodeCheck);
  connect(mTree, &TreeView::KeyUp, this, &ProjectView::tvwProject_KeyUp);
  connect(mTree, &TreeView::nodesCleared, this, [this] { mTickedHints.clear(); });
  // Raised on as they come.
  connect(mTree, &TreeView::AfterLabelEdit, this, &ProjectView::AfterLabelEdit);
  connect(mTree, &TreeView::BeforeLabelEdit, this, &ProjectView::BeforeLabelEdit);
  connect(mTree, &TreeView::Click, this, &ProjectView::Click);
  connect(mTree, &TreeView::Collapse, this, &ProjectView::Collapse);
  connect(mTree, &TreeView::DblClick, this, &ProjectView::DblClick);
  connect(mTree, &TreeView::Expand, this, &ProjectView::Expand);
  connect(mTree, &TreeView::KeyDown, this, &ProjectView::KeyDown);
  connect(mTree, &TreeView::KeyPress, this, &ProjectView::KeyPress);
  connect(mTree, &TreeView::MouseMove, this, &ProjectView::MouseMove);
  connect(mTree, &TreeView::NodeDblClick, this, &ProjectView::NodeDblClick);
}

void ProjectView::InitProperties() {
  Trap(this, "UserControl_InitProperties", [&] {
    mHighlightCommentedItems = true;
    CreateOverlays();
  });
}

void ProjectView::ReadProperties(const QVariantMap& bag) {
  Trap(this, "UserControl_ReadProperties", [&] {
    setSupportsSelection(bag.value(QStringLiteral("SupportsSelection"), false).toBool());
    mHighlightCommentedItems = bag.value(QStringLiteral("HighlightCommentedItems"), true).toBool();
    mEnabled = bag.value(QStringLiteral("Enabled"), true).toBool();
    for (const char* name : kAppearanceProperties) {
      const QString key = QLatin1String(name);
      if (bag.contains(key)) mAppearance.insert(key, bag.value(key));
    }
    CreateOverlays();
  });
}

void ProjectView::WriteProperties(QVariantMap& bag) const {
  Trap(this, "UserControl_WriteProperties", [&] {
    for (auto it = mAppearance.constBegin(); it != mAppearance.constEnd(); ++it)
      bag.insert(it.key(), it.value());
    bag.insert(QStringLiteral("Enabled"), mEnabled);
    bag.insert(QStringLiteral("SupportsSelection"), mSupportsSelection);
    bag.insert(QStringLiteral("HighlightCommentedItems"), mHighlightCommentedItems);
  });
}

void ProjectView::Terminate() {
  Trap(this, "Terminate", [&] {
    mNamespaceDefs.reset();
    mExclusions.reset();
    mRootItems.reset();
    mReverseCheckNode = nullptr;
  });
}

// --- Shared lookups ---------------------------------------------------------------------------

ProjectViewSettings& ProjectView::viewSettings() const {
  auto settings = Model().AppSettings();
  auto view = settings ? settings->ProjectViewSettings() : nullptr;
  if (!view) RaiseObjectRequired();
  return *view;
}

SVProject& ProjectView::project() const {
  if (!mSVProject) RaiseObjectRequired();
  return *mSVProject;
}

StringCollection& ProjectView::exclusions() const {
  if (!mExclusions) RaiseObjectRequired();
  return *mExclusions;
}

std::shared_ptr<NamespaceProvider> ProjectView::providerOf(const NamespaceDef& nd) const {
  return project().GetNamespaceProvider(nd.ProviderName());
}

std::shared_ptr<NamespaceDef> ProjectView::definitionOf(const TreeNode& node) const {
  auto nd = mNamespaceDefs ? mNamespaceDefs->ItemByMoniker(node.Tag()) : nullptr;
  if (!nd) RaiseObjectRequired();
  return nd;
}

void ProjectView::pushVisibilityToProject() {
  sv::SVProject& target = project();
  target.setShowPrivateMembers(ShowPrivate());
  target.setShowFriendMembers(ShowFriend());
  target.setShowProtectedMembers(ShowProtected());
  target.setShowProtectedFriendMembers(target.ShowProtectedMembers());
}

// --- Properties -------------------------------------------------------------------------------

QString ProjectView::AppName() const {
  return sv::AppName();
}

void ProjectView::setAppName(const QString& value) {
  Trap(this, "AppName",
       [&] {
         sv::setAppName(value);
         const ProjectViewSettings& settings = viewSettings();
         SetCommandChecked(*mDock->Command(QStringLiteral("AutoExpand")), settings.AutoExpand());
         SetCommandChecked(*mDock->Command(QStringLiteral("ShowPrivate")), settings.ShowPrivate());
         SetCommandChecked(*mDock->Command(QStringLiteral("ShowFriend")), settings.ShowFriend());
         SetCommandChecked(*mDock->Command(QStringLiteral("ShowProtected")),
                           settings.ShowProtected());
         SetCommandChecked(*mDock->Command(QStringLiteral("ShowInherited")), mShowInherited);
         SetCommandChecked(*mDock->Command(QStringLiteral("Grouped")), settings.Grouped());
       },
       {{"New_AppName", value}});
}

void ProjectView::setSVProject(const std::shared_ptr<sv::SVProject>& value) {
  Trap(this, "SVProject", [&] { mSVProject = value; });
}

void ProjectView::setSupportsSelection(bool value) {
  Trap(this, "SupportsSelection",
       [&] {
         mSupportsSelection = value;
         mTree->setCheckBoxes(value);
       },
       {{"New_SupportsSelection", value}});
}

void ProjectView::setHighlightCommentedItems(bool value) {
  Trap(this, "HighlightCommentedItems", [&] { mHighlightCommentedItems = value; });
}

QString ProjectView::Filter() const {
  return Trap(this, "Filter", [&] {
    QString scope;
    if (ShowPrivate()) {
      scope = QStringLiteral("private+public+friend+protected");
    } else {
      scope = QStringLiteral("public");
      if (ShowFriend()) scope += QStringLiteral("+friend");
      if (ShowProtected()) scope += QStringLiteral("+protected");
    }
    return mFilter + QStringLiteral("IgnoreNamespaceIncludeFlag=true,scope=") + scope +
           QStringLiteral(",IncludeInherited=") +
           (mShowInherited ? QStringLiteral("True") : QStringLiteral("False"));
  });
}

void ProjectView::setFilter(const QString& value) {
  Trap(this, "Filter", [&] { mFilter = value; }, {{"New_Filter", value}});
}

void ProjectView::setShowInherited(bool value) {
  Trap(this, "ShowInherited", [&] { mShowInherited = value; });
}

void ProjectView::setShowAllPropertyBlocks(bool value) {
  Trap(this, "ShowAllPropertyBlocks", [&] { mShowAllPropertyBlocks = value; });
}

bool ProjectView::ShowPrivate() const {
  return Trap(this, "ShowPrivate", [&] { return viewSettings().ShowPrivate(); });
}

void ProjectView::setShowPrivate(bool value) {
  Trap(this, "ShowPrivate", [&] { viewSettings().setShowPrivate(value); });
}

bool ProjectView::ShowFriend() const {
  return Trap(this, "ShowFriend", [&] { return viewSettings().ShowFriend(); });
}

void ProjectView::setShowFriend(bool value) {
  Trap(this, "ShowFriend", [&] { viewSettings().setShowFriend(value); });
}

bool ProjectView::ShowProtected() const {
  return Trap(this, "ShowProtected", [&] { return viewSettings().ShowProtected(); });
}

void ProjectView::setShowProtected(bool value) {
  Trap(this, "ShowProtected", [&] { viewSettings().setShowProtected(value); });
}

bool ProjectView::AutoExpandChildren() const {
  return Trap(this, "AutoExpandChildren", [&] { return viewSettings().AutoExpand(); });
}

void ProjectView::setAutoExpandChildren(bool value) {
  Trap(this, "AutoExpandChildren", [&] { viewSettings().setAutoExpand(value); });
}

bool ProjectView::Grouped() const {
  return Trap(this, "Grouped", [&] { return viewSettings().Grouped(); });
}

void ProjectView::setGrouped(bool value) {
  Trap(this, "Grouped", [&] { viewSettings().setGrouped(value); });
}

std::shared_ptr<CodeItem> ProjectView::CurrentRootItem() {
  return Trap(this, "CurrentRootItem", [&]() -> std::shared_ptr<CodeItem> {
    TreeNode* node = mTree->SelectedItem();
    if (!node) return nullptr;
    return objectFromQualifiedName(node->Root()->Key());
  });
}

QVariant ProjectView::Icon(const QString& name) const {
  return Trap(this, "Icon", [&] { return mTree->ImageList()->Item(name).Picture; },
              {{"Name", name}});
}

void ProjectView::setImageList(sv::ImageList* images) {
  Trap(this, "ImageList", [&] {
    if (images) ensureOverlayPictures(*images);
    mTree->setImageList(images);
  });
}

bool ProjectView::CopyCommentsEnabled() const {
  return Trap(this, "CopyCommentsEnabled",
              [&] { return mDock->Command(QStringLiteral("Copy"))->Enabled(); });
}

void ProjectView::setCopyCommentsEnabled(bool value) {
  Trap(this, "CopyCommentsEnabled",
       [&] { mDock->Command(QStringLiteral("Copy"))->setEnabled(value); });
}

bool ProjectView::PasteCommentsEnabled() const {
  return Trap(this, "PasteCommentsEnabled",
              [&] { return mDock->Command(QStringLiteral("Paste"))->Enabled(); });
}

void ProjectView::setPasteCommentsEnabled(bool value) {
  Trap(this, "PasteCommentsEnabled",
       [&] { mDock->Command(QStringLiteral("Paste"))->setEnabled(value); });
}

void ProjectView::setToolbarStyle(int value) {
  // The dock's look is the renderer's business; it reads the style from here.
  Trap(this, "ToolbarStyle", [&] { mToolbarStyle = value; });
}

void ProjectView::HideEditButtons() {
  Trap(this, "HideEditButtons", [&] {
    for (const char* key : {"Copy", "Paste", "Previous", "Next", "Properties"})
      mDock->Command(QLatin1String(key))->setVisible(false);
  });
}

void ProjectView::PrepNamespaceDef(const std::shared_ptr<NamespaceDef>& nd) {
  Trap(this, "PrepNamespaceDef", [&] {
    if (!nd) RaiseObjectRequired();
    sv::PrepNamespaceDef(*nd);
  });
}

// --- Toolbar ----------------------------------------------------------------------------------

bool ProjectView::toggled(DockCommand* command) const {
  // The dock has flipped the toggle before it raised the click, so its state is the new one.
  return CommandChecked(*command);
}

void ProjectView::runCommand(DockCommand* command) {
  const QString key = command->Key().toLower();
  if (key == QLatin1String("previous")) {
    MoveToPreviousItem(true);
  } else if (key == QLatin1String("next")) {
    MoveToNextItem(true);
  } else if (key == QLatin1String("properties")) {
    emit PropertiesRequested();
  } else if (key == QLatin1String("autoexpand")) {
    setAutoExpandChildren(toggled(command));
  } else if (key == QLatin1String("showfriend")) {
    setShowFriend(toggled(command));
    Refresh();
  } else if (key == QLatin1String("showprivate")) {
    setShowPrivate(toggled(command));
    Refresh();
  } else if (key == QLatin1String("showprotected")) {
    setShowProtected(toggled(command));
    Refresh();
  } else if (key == QLatin1String("showinherited")) {
    setShowInherited(toggled(command));
    Refresh();
  } else if (key == QLatin1String("grouped")) {
    setGrouped(toggled(command));
    Refresh();
  } else if (key == QLatin1String("copy")) {
    emit CopyCommentsRequested();
  } else if (key == QLatin1String("paste")) {
    emit PasteCommentsRequested();
  } else if (key == QLatin1String("find")) {
    mDock->Band(kFindBar)->setVisible(toggled(command));
  } else if (key == QLatin1String("findnow")) {
    FindNow();
  }
  emit AfterCommand();
}

void ProjectView::dksProjectView_CommandClick(DockCommand* command) {
  Trap(this, "dksProjectView_CommandClick", [&] { runCommand(command); },
       {{"Command", command->Key()}});
}

void ProjectView::dksProjectView_CommandKeyDown(DockCommand* command, int* keyCode, int shift) {
  Trap(this, "dksProjectView_CommandKeyDown",
       [&] {
         if (*keyCode != KeyCode::Return) return;
         if (command->Key().compare(QLatin1String("FindValue"), Qt::CaseInsensitive) != 0) return;
         runCommand(mDock->Command(QStringLiteral("FindNow")));
       },
       {{"Command", command->Key()}, {"KeyCode", *keyCode}, {"Shift", shift}});
}

}  // namespace sv
