#include "codetree/ProjectEditor.h"

#include "codetree/ProjectView.h"
#include "comments/CommentEditor.h"
#include "comments/RefreshWrapper.h"
#include "foundation/DumpValue.h"
#include "foundation/ErrorTrap.h"
#include "foundation/modMain.h"
#include "foundation/modProjectView.h"
#include "model/NamespaceDefs.h"
#include "ui/Splitter.h"

namespace sv {

namespace {

// The split of a new control and of a user who never moved it.
constexpr double kDefaultSplitPercent = 40;
const QString kSplitValue = QStringLiteral("ViewSplitterPercentage");
const QString kSplitPath = QStringLiteral("Layout");
const QString kSplitSizeValue = QStringLiteral("ProjectEditorSplitSize");

}  // namespace

ProjectEditor::ProjectEditor(QObject* parent)
    : QObject(parent),
      mProject(new ProjectView(this)),
      mEditor(new CommentEditor(this)),
      mSplit(new Splitter(this)) {
  mProject->setObjectName(QStringLiteral("Project"));
  mEditor->setObjectName(QStringLiteral("cEditor"));
  mSplit->setObjectName(QStringLiteral("splitMain"));
  // The tree is placed in comment mode, as a new control is.
  mProject->InitProperties();
  // The tree on the left, the editor on the right.
  mSplit->setChild1(mProject);
  mSplit->setChild2(mEditor);
  mSplit->setPosition(kDefaultSplitPercent);
  connectHalves();
  ConfigureForCommonUI(this);
}

ProjectEditor::~ProjectEditor() = default;

QString ProjectEditor::DumpMembers() const {
  return DumpValues({
      {"mSVContentFile", DumpVariant::Object(mSVContentFile, QStringLiteral("SVContentFile"))},
      {"mCancelSpellCheck", mCancelSpellCheck},
      {"mCommentPipe", DumpVariant::Object(QStringLiteral("CommentPipe"))},
      {"mWrapper",
       mWrapper ? DumpVariant::Object(QStringLiteral("RefreshWrapper")) : DumpVariant::Nothing()},
      {"mTerminated", mTerminated},
      {"mAppName", mAppName},
  });
}

void ProjectEditor::connectHalves() {
  connect(mProject, &ProjectView::NodeClick, this, &ProjectEditor::Project_NodeClick);
  connect(mProject, &ProjectView::CopyCommentsRequested, this,
          &ProjectEditor::Project_CopyCommentsRequested);
  connect(mProject, &ProjectView::PasteCommentsRequested, this,
          &ProjectEditor::Project_PasteCommentsRequested);
  connect(mProject, &ProjectView::AfterCommand, this, &ProjectEditor::Project_AfterCommand);
  connect(mProject, &ProjectView::ItemPopulated, this, &ProjectEditor::Project_ItemPopulated);
  connect(mProject, &ProjectView::PropertiesRequested, this, &ProjectEditor::PropertiesRequested);

  connect(mEditor, &CommentEditor::TaggedCommentAdded, this,
          &ProjectEditor::cEditor_TaggedCommentAdded);
  connect(mEditor, &CommentEditor::TaggedCommentDeleted, this,
          &ProjectEditor::cEditor_TaggedCommentDeleted);
  connect(mEditor, &CommentEditor::UpdateItemImage, this, &ProjectEditor::cEditor_UpdateItemImage);
  connect(mEditor, &CommentEditor::DocumentComplete, this,
          &ProjectEditor::cEditor_DocumentComplete);
  connect(mEditor, &CommentEditor::HyperlinkClick, this, &ProjectEditor::cEditor_HyperlinkClick);
  // Raised on with the editor's arguments.
  connect(mEditor, &CommentEditor::InsertHyperLinkRequest, this,
          &ProjectEditor::InsertHyperLinkRequest);
  connect(mEditor, &CommentEditor::BuildLinkRequest, this, &ProjectEditor::BuildLinkRequest);
  connect(mEditor, &CommentEditor::BuildLinkRequestEx, this, &ProjectEditor::BuildLinkRequestEx);
  connect(mEditor, &CommentEditor::AdditionalFileAdded, this, &ProjectEditor::AdditionalFileAdded);
  connect(mEditor, &CommentEditor::SpellIgnoreWordAdded, this,
          &ProjectEditor::SpellIgnoreWordAdded);
  connect(mEditor, &CommentEditor::SpellCustomWordAdded, this,
          &ProjectEditor::SpellCustomWordAdded);
  connect(mEditor, &CommentEditor::SpellingOptionsRequested, this,
          &ProjectEditor::SpellingOptionsRequested);
  connect(mEditor, &CommentEditor::TaggedCommentChanged, this,
          &ProjectEditor::TaggedCommentChanged);

  connect(mSplit, &Splitter::AfterDrag, this, &ProjectEditor::splitMain_AfterDrag);
}

QString ProjectEditor::productTitle() const {
  const QString name = sv::AppName();
  return name.isEmpty() ? QStringLiteral("Scrivara") : name;
}

// --- Passed to the comment editor -------------------------------------------------------------

bool ProjectEditor::ShowCombo() const {
  return Trap(this, "ShowCombo", [&] { return mEditor->ShowCombo(); });
}

void ProjectEditor::setShowCombo(bool value) {
  Trap(this, "ShowCombo", [&] { mEditor->setShowCombo(value); }, {{"New_ShowCombo", value}});
}

std::shared_ptr<Template> ProjectEditor::InPlaceTemplate() const {
  return Trap(this, "InPlaceTemplate", [&] { return mEditor->InPlaceTemplate(); });
}

void ProjectEditor::setInPlaceTemplate(std::shared_ptr<Template> value) {
  Trap(this, "InPlaceTemplate", [&] { mEditor->setInPlaceTemplate(std::move(value)); });
}

QString ProjectEditor::DesignFlag() const {
  return Trap(this, "DesignFlag", [&] { return mEditor->DesignFlag(); });
}

void ProjectEditor::setDesignFlag(const QString& value) {
  Trap(this, "DesignFlag", [&] { mEditor->setDesignFlag(value); }, {{"New_DesignFlag", value}});
}

QStringList ProjectEditor::Modules() const {
  return Trap(this, "Modules", [&] { return mEditor->Modules(); });
}

void ProjectEditor::setModules(const QStringList& value) {
  Trap(this, "Modules", [&] { mEditor->setModules(value); });
}

QString ProjectEditor::ProjectName() const {
  return Trap(this, "ProjectName", [&] { return mEditor->ProjectName(); });
}

void ProjectEditor::setProjectName(const QString& value) {
  Trap(this, "ProjectName", [&] { mEditor->setProjectName(value); }, {{"New_ProjectName", value}});
}

bool ProjectEditor::KeepTombstones() const {
  return Trap(this, "KeepTombstones", [&] { return mEditor->KeepTombstones(); });
}

void ProjectEditor::setKeepTombstones(bool value) {
  Trap(this, "KeepTombstones", [&] { mEditor->setKeepTombstones(value); },
       {{"New_KeepTombstones", value}});
}

bool ProjectEditor::EditInFocus() const {
  return Trap(this, "EditInFocus", [&] { return mEditor->EditInFocus(); });
}

void ProjectEditor::setEditInFocus(bool value) {
  Trap(this, "EditInFocus", [&] { mEditor->setEditInFocus(value); }, {{"New_EditInFocus", value}});
}

void ProjectEditor::SetSpellObject(std::shared_ptr<ISpellingEngine> Spell) {
  Trap(this, "SetSpellObject", [&] { mEditor->SetSpellObject(std::move(Spell)); });
}

void ProjectEditor::SetSpellOptions(bool Suggest, bool IgnoreInUpperCase, bool IgnoreWithNumbers,
                                    bool IgnoreInMixedCase, const QString& MainDictionaryFile,
                                    const QString& CustomDictionaryFile,
                                    const QStringList& IgnoreWordList) {
  Trap(this, "SetSpellOptions",
       [&] {
         mEditor->SetSpellOptions(Suggest, IgnoreInUpperCase, IgnoreWithNumbers, IgnoreInMixedCase,
                                  MainDictionaryFile, CustomDictionaryFile, IgnoreWordList);
       },
       {{"Suggest", Suggest},
        {"IgnoreInUpperCase", IgnoreInUpperCase},
        {"IgnoreWithNumbers", IgnoreWithNumbers},
        {"IgnoreInMixedCase", IgnoreInMixedCase},
        {"MainDictionaryFile", MainDictionaryFile},
        {"CustomDictionaryFile", CustomDictionaryFile}});
}

int ProjectEditor::ToolbarStyle() const {
  return Trap(this, "ToolbarStyle", [&] { return mEditor->ToolbarStyle(); });
}

void ProjectEditor::setToolbarStyle(int value) {
  Trap(this, "ToolbarStyle", [&] { mEditor->setToolbarStyle(value); },
       {{"New_ToolbarStyle", value}});
}

void ProjectEditor::SaveUserData(QVariantMap& e) const {
  Trap(this, "SaveUserData", [&] { mEditor->SaveUserData(e); });
}

void ProjectEditor::LoadUserData(const QVariantMap& e) {
  Trap(this, "LoadUserData", [&] { mEditor->LoadUserData(e); });
}

// --- Passed to both halves and to the code tree -----------------------------------------------

void ProjectEditor::setSVProject(const std::shared_ptr<sv::SVProject>& value) {
  Trap(this, "SVProject", [&] {
    mSVProject = value;
    mProject->setSVProject(value);
    mEditor->setSVProject(value);
  });
}

bool ProjectEditor::ShowAllPropertyBlocks() const {
  return Trap(this, "ShowAllPropertyBlocks", [&] { return mProject->ShowAllPropertyBlocks(); });
}

void ProjectEditor::setShowAllPropertyBlocks(bool value) {
  Trap(this, "ShowAllPropertyBlocks", [&] { mProject->setShowAllPropertyBlocks(value); },
       {{"New_ShowAllPropertyBlocks", value}});
}

bool ProjectEditor::ShowInherited() const {
  return Trap(this, "ShowInherited", [&] { return mProject->ShowInherited(); });
}

void ProjectEditor::setShowInherited(bool value) {
  Trap(this, "ShowInherited", [&] { mProject->setShowInherited(value); },
       {{"New_ShowInherited", value}});
}

void ProjectEditor::HighlightCommentedNodes() {
  Trap(this, "HighlightCommentedNodes", [&] { mProject->HighlightCommentedNodes(); });
}

std::shared_ptr<CodeItem> ProjectEditor::GetObjectFromQualifiedName(const QString& QualifiedName) {
  return Trap(this, "GetObjectFromQualifiedName",
              [&] { return mProject->GetObjectFromQualifiedName(QualifiedName); },
              {{"QualifiedName", QualifiedName}});
}

bool ProjectEditor::SelectItem(const QString& QualifiedName) {
  return Trap(this, "SelectItem", [&] { return mProject->SelectItem(QualifiedName); },
              {{"QualifiedName", QualifiedName}});
}

void ProjectEditor::NextItem(bool UnCommented) {
  Trap(this, "NextItem", [&] { mProject->NextItem(UnCommented); }, {{"UnCommented", UnCommented}});
}

void ProjectEditor::PreviousItem(bool UnCommented) {
  Trap(this, "PreviousItem", [&] { mProject->PreviousItem(UnCommented); },
       {{"UnCommented", UnCommented}});
}

void ProjectEditor::PrepNamespaceDef(const std::shared_ptr<NamespaceDef>& nd) {
  Trap(this, "PrepNamespaceDef", [&] { mProject->PrepNamespaceDef(nd); });
}

void ProjectEditor::LoadFromNamespaceDefs(const std::shared_ptr<sv::NamespaceDefs>& namespaceDefs,
                                          const QString& Moniker) {
  Trap(this, "LoadFromNamespaceDefs",
       [&] { mProject->LoadFromNamespaceDefs(namespaceDefs, Moniker, true); },
       {{"Moniker", Moniker}});
}

void ProjectEditor::LoadFromNamespaceRootItem(
    const std::shared_ptr<sv::NamespaceDefs>& namespaceDefs,
    const std::shared_ptr<CodeItem>& RootItem) {
  Trap(this, "LoadFromNamespaceRootItem",
       [&] { mProject->LoadFromNamespaceRootItem(namespaceDefs, RootItem, true); });
}

// --- Own members ------------------------------------------------------------------------------

void ProjectEditor::setSVContentFile(const std::shared_ptr<sv::SVContentFile>& value) {
  Trap(this, "SVContentFile", [&] {
    mSVContentFile = value;
    mCommentPipe.setContentFile(value);
  });
}

void ProjectEditor::BindToWrapper(RefreshWrapper* wrapper) {
  Trap(this, "BindToWrapper", [&] {
    mWrapper = wrapper;
    // One host wrapper serves the whole control: the editor's page switches use it too.
    mEditor->BindToWrapper(wrapper);
  });
}

void ProjectEditor::setAppName(const QString& value) {
  Trap(this, "AppName",
       [&] {
         mAppName = value;
         mProject->setAppName(value);
         mEditor->setAppName(value);
         mSplit->setPosition(
             GetAppValue(kSplitSizeValue, mSplit->Position(), Conversion::Number).toDouble());
       },
       {{"New_AppName", value}});
}

double ProjectEditor::SplitPercent() const {
  return Trap(this, "SplitPercent", [&] { return mSplit->Position(); });
}

void ProjectEditor::setSplitPercent(double value) {
  Trap(this, "SplitPercent",
       [&] {
         mSplit->setPosition(value);
         SetAppValue(kSplitValue, mSplit->Position(), kSplitPath);
       },
       {{"New_SplitPercent", value}});
}

void ProjectEditor::splitMain_AfterDrag() {
  Trap(this, "splitMain_AfterDrag", [&] { setSplitPercent(mSplit->Position()); });
}

void ProjectEditor::ReloadSettings() {
  Trap(this, "ReloadSettings", [&] {
    mEditor->CommitEdit();
    mEditor->ReloadSettings();
    mSplit->setPosition(
        GetAppValue(kSplitValue, kDefaultSplitPercent, Conversion::Number, kSplitPath).toDouble());
  });
}

void ProjectEditor::Refresh() {
  Trap(this, "Refresh", [&] {
    mEditor->CommitEdit();
    mEditor->Clear();
    mProject->Refresh();
  });
}

void ProjectEditor::Clear() {
  Trap(this, "Clear", [&] {
    mProject->Clear();
    mEditor->Clear();
    mEditor->setCurrentCodeElement(nullptr);
  });
}

void ProjectEditor::CancelSpellCheck() {
  Trap(this, "CancelSpellCheck", [&] {
    mCancelSpellCheck = true;
    mEditor->setCancelSpellCheck(true);
  });
}

void ProjectEditor::Terminate() {
  Trap(this, "Terminate", [&] {
    if (mTerminated) return;
    mTerminated = true;
    SetAppValue(kSplitSizeValue, mSplit->Position());
    mProject->Terminate();
    // The host's spelling engine and help window go back with the rest.
    mEditor->SetSpellObject(nullptr);
    mEditor->IDynamicHelpContext_Initialise(nullptr);
    mEditor->Terminate();
    mSVProject.reset();
    mSVContentFile.reset();
    mCommentPipe.setContentFile(nullptr);
    mWrapper = nullptr;
    mDynamicHelpHost.reset();
  });
}

// --- Context help -----------------------------------------------------------------------------

void ProjectEditor::Initialise(const std::shared_ptr<IDynamicHelpHost>& Notify) {
  Trap(this, "IDynamicHelpContext_Initialise", [&] {
    mDynamicHelpHost = Notify;
    mEditor->IDynamicHelpContext_Initialise(Notify);
  });
}

void ProjectEditor::QueryContext(QStringList& KeywordCollection,
                                 QMap<QString, QString>& Attributes) {
  Trap(this, "IDynamicHelpContext_QueryContext", [&] {
    if (mProject->Nodes()->Count() < 1) return;
    KeywordCollection << QStringLiteral("SV.CommentProjectEditor");
    const auto defs = mProject->NamespaceDefs();
    Attributes.insert(QStringLiteral("SV.CommentProjectEditor.NamespaceProfile"),
                      defs ? defs->Name() : QString());
    mEditor->IDynamicHelpContext_QueryContext(KeywordCollection, Attributes);
  });
}

}  // namespace sv
