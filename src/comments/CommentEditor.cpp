#include "comments/CommentEditor.h"

#include <QDir>
#include <QFileInfo>

#include "comments/CommentEditorHost.h"
#include "comments/CommentPages.h"
#include "comments/DesignerContainer.h"
#include "comments/DesignerControl.h"
#include "comments/DesignerRegistry.h"
#include "comments/ElementFacts.h"
#include "comments/designers/HtmlEditDesigner.h"
#include "foundation/DumpValue.h"
#include "foundation/ErrorTrap.h"
#include "foundation/IgnoreErrors.h"
#include "foundation/modProjectView.h"
#include "model/AppSettings.h"
#include "model/CodeItem.h"
#include "model/ModelFactory.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "model/SVProject.h"
#include "model/TaggedComment.h"
#include "model/TaggedCommentDef.h"
#include "model/TaggedCommentDefs.h"
#include "model/TaggedComments.h"
#include "model/Template.h"
#include "ui/Dock.h"
#include "ui/ExplorerBar.h"
#include "ui/ImageList.h"
#include "ui/PropertyList.h"
#include "widgets/EBCheckBoxes.h"
#include "widgets/frmTipPopup.h"

namespace sv {

namespace {

// The bar's back colour, which the flag boxes take as theirs.
constexpr quint32 kBarBackColor = 0x00FF00;
// The description pane of the tag list as it is created.
constexpr int kDescriptionHeight = 49;

}  // namespace

CommentEditor::CommentEditor(QObject* parent)
    : QObject(parent),
      mEb(new ExplorerBar(this)),
      mDock(new Dock(this)),
      mImages(new ImageList(this)),
      mFacts(std::make_shared<ElementFacts>()),
      mPages(std::make_shared<CommentPages>()),
      mDesignerContainer(new sv::DesignerContainer(this)),
      mHTMLEdit(mDesignerContainer->Add(QStringLiteral("HTMLEdit"),
                                        std::make_shared<HtmlEditDesigner>())),
      mDesignerRegistry(DesignerRegistry::WithDefaults()),
      mHost(std::make_unique<CommentEditorHost>(*this)) {
  mDesignerContainer->setObjectName(QStringLiteral("DesignerContainer"));
  mEb->setObjectName(QStringLiteral("eb"));
  mDock->setObjectName(QStringLiteral("DockCommentTypes"));
  mEb->setImageList(mImages);
  mDock->setImageList(mImages);
  mDock->AddBand(QLatin1String(ToolbarBand))->setVisible(false);
  // The groups the bar has from the start; GroupName groups are added before "other".
  mEb->AddGroup(QStringLiteral("title"));
  mEb->AddGroup(QStringLiteral("main"), QStringLiteral("Pages"));
  mEb->AddGroup(QStringLiteral("flags"), QStringLiteral("Flags"))
      ->AddItem(QStringLiteral("checkboxcontainer"));
  mEb->AddGroup(QStringLiteral("other"), QStringLiteral("Other"))
      ->AddItem(QStringLiteral("other"), QStringLiteral("Other Tags"), QStringLiteral("other"));
  connect(mEb, &ExplorerBar::SelChange, this, &CommentEditor::eb_SelChange);
  connect(mDock, &Dock::CommandClick, this, &CommentEditor::DockCommentTypes_CommandClick);
  connect(mDock, &Dock::PopupWindowShowing, this,
          &CommentEditor::DockCommentTypes_PopupWindowShowing);
  connect(mDesignerContainer, &DesignerContainer::Resize, this,
          &CommentEditor::DesignerContainer_Resize);
}

CommentEditor::~CommentEditor() = default;

QString CommentEditor::DumpMembers() const {
  return DumpValues({
      {"NamespaceDefs", DumpVariant::Object(mNamespaceDefs, QStringLiteral("NamespaceDefs"))},
      {"CurrentRootItem", DumpVariant::Object(mCurrentRootItem, QStringLiteral("CodeItem"))},
      {"CancelSpellCheck", mCancelSpellCheck},
      {"mShowCombo", mShowCombo},
      {"mCurrentNamespaceDef",
       DumpVariant::Object(mCurrentNamespaceDef, QStringLiteral("NamespaceDef"))},
      {"mNamespaceChanged", mNamespaceChanged},
      {"mEditInFocus", mEditInFocus},
      {"mForceChange", mForceChange},
      {"mIgnoreReset", mIgnoreReset},
      {"mCurrentCodeElement", DumpVariant::Object(mCurrentCodeElement, QStringLiteral("CodeItem"))},
      {"mShowLegacyTags", mShowLegacyTags},
      {"mListImplicitTaggedCommentType", mListImplicitTaggedCommentType},
      {"mDesignFlag", mDesignFlag},
      {"mModules", DumpVariant::List(mModules)},
      {"mProjectName", mProjectName},
      {"ActiveTaggedCommentDef",
       DumpVariant::Object(mActiveTaggedCommentDef, QStringLiteral("TaggedCommentDef"))},
      {"mNoSetFocus", mNoSetFocus},
      {"mInPlaceTemplate", DumpVariant::Object(mInPlaceTemplate, QStringLiteral("Template"))},
      {"mBaseURL", mBaseURL},
      {"mSVProject", DumpVariant::Object(mSVProject, QStringLiteral("SVProject"))},
      {"mInPlaceEditorIsActive", mInPlaceEditorIsActive},
      {"mKeepTombstones", mKeepTombstones},
      {"mCommentType", mCommentType},
      {"mTipPopup", mTipPopup ? DumpVariant::Object("frmTipPopup") : DumpVariant::Nothing()},
      {"mDirty", mDirty},
      {"mAutoSetFocus", mAutoSetFocus},
      {"mTerminated", mTerminated},
      {"mCheckBoxes", mCheckBoxes ? DumpVariant::Object("EBCheckBoxes") : DumpVariant::Nothing()},
      {"mPostingtoCheckboxes", mPostingtoCheckboxes},
      {"mPopulating", mPopulating},
      {"mInitialized", mInitialized},
      {"mTagsList", mTagsList ? DumpVariant::Object("PropertiesList") : DumpVariant::Nothing()},
      {"ActiveDesigner", DumpVariant::Object(mActiveDesigner, QStringLiteral("IContentDesigner"))},
      {"mWrapper", mWrapper ? DumpVariant::Object("RefreshWrapper") : DumpVariant::Nothing()},
      {"CreatedDesigners",
       DumpVariant::List(QStringList(mCreatedDesigners.begin(), mCreatedDesigners.end()))},
  });
}

void CommentEditor::setNamespaceDefs(std::shared_ptr<sv::NamespaceDefs> value) {
  Trap(this, "NamespaceDefs", [&] { mNamespaceDefs = std::move(value); });
}

void CommentEditor::setCurrentRootItem(std::shared_ptr<CodeItem> value) {
  Trap(this, "CurrentRootItem", [&] { mCurrentRootItem = std::move(value); });
}

void CommentEditor::setCurrentNamespaceDef(std::shared_ptr<NamespaceDef> value) {
  Trap(this, "CurrentNamespaceDef", [&] {
    if (value == mCurrentNamespaceDef) return;
    mCurrentNamespaceDef = std::move(value);
    mNamespaceChanged = true;
  });
}

void CommentEditor::setCurrentCodeElement(std::shared_ptr<CodeItem> value) {
  Trap(this, "CurrentCodeElement", [&] {
    if (!mInitialized) InitControl();
    mCurrentCodeElement = std::move(value);
    if (mCurrentCodeElement) mPages->UpdateDescription(mCurrentCodeElement, true);
    Refresh(false);
  });
}

std::shared_ptr<sv::TaggedComments> CommentEditor::TaggedComments() const {
  return Trap(this, "TaggedComments", [&]() -> std::shared_ptr<sv::TaggedComments> {
    if (!mCurrentCodeElement) return nullptr;
    return mCurrentCodeElement->TaggedComments();
  });
}

PropertyRow* CommentEditor::SelectedItem() const {
  return mTagsList ? mTagsList->SelectedItem() : nullptr;
}

void CommentEditor::setSelectedItem(PropertyRow* row) {
  Trap(this, "SelectedItem", [&] { TagsList()->setSelectedItem(row); });
}

void CommentEditor::setCommentType(long value) {
  Trap(this, "CommentType", [&] { mCommentType = value; }, {{"Value", value}});
}

void CommentEditor::setDirty(bool value) {
  Trap(this, "Dirty",
       [&] {
         if (value == mDirty) return;
         mDirty = value;
         emit DirtyStateChanged();
       },
       {{"Value", value}});
}

QString CommentEditor::TitleCaption() const {
  return mEb->Group(QStringLiteral("title"))->Caption();
}

void CommentEditor::setTitleCaption(const QString& value) {
  Trap(this, "TitleCaption", [&] { mEb->Group(QStringLiteral("title"))->setCaption(value); },
       {{"Value", value}});
}

QString CommentEditor::TitleIcon() const {
  return mEb->Group(QStringLiteral("title"))->Icon();
}

void CommentEditor::setTitleIcon(const QString& value) {
  Trap(this, "TitleIcon", [&] { mEb->Group(QStringLiteral("title"))->setIcon(value); },
       {{"Value", value}});
}

void CommentEditor::setSVProject(std::shared_ptr<sv::SVProject> value) {
  Trap(this, "SVProject", [&] { mSVProject = std::move(value); });
}

void CommentEditor::setShowCombo(bool value) {
  Trap(this, "ShowCombo",
       [&] {
         mShowCombo = value;
         mDock->Band(QLatin1String(ToolbarBand))->setVisible(value);
         mEb->setVisible(!value);
       },
       {{"Value", value}});
}

std::shared_ptr<Template> CommentEditor::InPlaceTemplate() const {
  return Trap(this, "InPlaceTemplate", [&]() -> std::shared_ptr<Template> {
    if (mInPlaceTemplate) return mInPlaceTemplate;
    if (!mCurrentNamespaceDef || !mCurrentNamespaceDef->Owner()) return nullptr;
    const QString owner = mCurrentNamespaceDef->Owner()->Name();
    std::shared_ptr<Template> found;
    for (const auto& candidate : *Model().AppSettings()->Templates()) {
      if (candidate->Flags().contains(QLatin1Char('x'))) continue;
      const auto sets = candidate->NameSpaces();
      if (sets && sets->Name().compare(owner, Qt::CaseInsensitive) == 0) found = candidate;
    }
    return found;
  });
}

void CommentEditor::setInPlaceTemplate(std::shared_ptr<Template> value) {
  Trap(this, "InPlaceTemplate", [&] {
    mInPlaceTemplate = std::move(value);
    Refresh(false);
  });
}

QString CommentEditor::AppPath() const {
  if (!mAppPath.isEmpty()) return mAppPath;
  return IgnoreErrors([] { return Model().AppSettings()->AppPath(); }).value_or(QString());
}

void CommentEditor::setElementFacts(std::shared_ptr<ElementFacts> value) {
  mFacts = value ? std::move(value) : std::make_shared<ElementFacts>();
}

void CommentEditor::setPages(std::shared_ptr<CommentPages> value) {
  mPages = value ? std::move(value) : std::make_shared<CommentPages>();
}

void CommentEditor::Initialize() {
  Trap(this, "Initialize", [&] {
    if (!mInitialized) InitControl();
  });
}

void CommentEditor::InitControl() {
  mInitialized = true;
  mEb->setBackColor(kBarBackColor);
  mCheckBoxes = new EBCheckBoxes(this);
  mCheckBoxes->SetupExplorerBar(mEb);
  connect(mCheckBoxes, &EBCheckBoxes::Click, this, &CommentEditor::chkExplorerBar_Click);
  mNamespaceChanged = true;
  const QDir icons(AppPath() + QStringLiteral("/icons/commenttypes"));
  for (const QFileInfo& file : icons.entryInfoList({QStringLiteral("*.png")}, QDir::Files)) {
    const QString key = file.completeBaseName().toLower();
    if (!mImages->Exists(key)) mImages->Add(key, file.absoluteFilePath());
  }
  mTipPopup = new frmTipPopup(this);
}

void CommentEditor::Load(std::shared_ptr<NamespaceDef> namespaceDef, std::shared_ptr<CodeItem> item,
                         std::shared_ptr<CodeItem> rootItem, const QString& titleIcon,
                         const QString& titleCaption) {
  Trap(this, "Load",
       [&] {
         setCurrentNamespaceDef(std::move(namespaceDef));
         mCurrentRootItem = std::move(rootItem);
         setCurrentCodeElement(std::move(item));
         setTitleCaption(titleCaption);
         setTitleIcon(titleIcon);
         setDirty(false);
       },
       {{"TitleIcon", titleIcon}, {"TitleCaption", titleCaption}});
}

void CommentEditor::Clear() {
  Trap(this, "Clear", [&] {
    if (mTagsList) mTagsList->Clear();
    zSetTagControls(QStringLiteral("edit"), false);
  });
}

void CommentEditor::zSetTagControls(const QString& TagIdentifier, bool Enabled) {
  const QString tag = TagIdentifier.toUpper();
  for (DockCommand* command : mDock->Commands())
    if (command->Tag().toUpper() == tag) command->setEnabled(Enabled);
}

void CommentEditor::Terminate() {
  Trap(this, "Terminate", [&] {
    if (mTerminated) return;
    mTerminated = true;
    terminateDesigners();
    mWrapper = nullptr;
    mCurrentCodeElement.reset();
    mCurrentNamespaceDef.reset();
    mCurrentRootItem.reset();
    mNamespaceDefs.reset();
    mInPlaceTemplate.reset();
    mSVProject.reset();
    mActiveTaggedCommentDef.reset();
  });
}

PropertyList* CommentEditor::TagsList() {
  if (mTagsList) return mTagsList;
  mTagsList = new PropertyList(this);
  mTagsList->setObjectName(QStringLiteral("TagsListControl"));
  mTagsList->setColumns({{QStringLiteral("Name"), QStringLiteral("Tag")},
                         {QStringLiteral("Value"), QStringLiteral("Value")}});
  mTagsList->AddButton(QStringLiteral("AddButton"), 101, QStringLiteral("Click to add this tag"));
  mTagsList->AddButton(QStringLiteral("DeleteButton"), 102, QStringLiteral("Delete Tag"));
  // The description pane as the author last left it.
  const QString pane = QStringLiteral("Layout\\DescriptionPane");
  mTagsList->setDescriptionVisible(
      GetAppValue(QStringLiteral("Visible"), 1, Conversion::Number, pane).toDouble() != 0);
  mTagsList->setDescriptionHeight(static_cast<int>(
      GetAppValue(QStringLiteral("Height"), kDescriptionHeight, Conversion::Number, pane)
          .toDouble()));
  connect(mTagsList, &PropertyList::BeforeEdit, this, &CommentEditor::mTagsList_BeforeEdit);
  connect(mTagsList, &PropertyList::BeforeExtendedEdit, this,
          &CommentEditor::mTagsList_BeforeExtendedEdit);
  connect(mTagsList, &PropertyList::AfterEdit, this, &CommentEditor::mTagsList_AfterEdit);
  connect(mTagsList, &PropertyList::Change, this, &CommentEditor::mTagsList_Change);
  connect(mTagsList, &PropertyList::Collapse, this, &CommentEditor::mTagsList_Collapse);
  connect(mTagsList, &PropertyList::SelChange, this, &CommentEditor::mTagsList_SelChange);
  connect(mTagsList, &PropertyList::ButtonClick, this, &CommentEditor::mTagsList_ButtonClick);
  connect(mTagsList, &PropertyList::ItemDblClick, this, &CommentEditor::mTagsList_ItemDblClick);
  connect(mTagsList, &PropertyList::KeyDown, this, &CommentEditor::mTagsList_KeyDown);
  connect(mTagsList, &PropertyList::KeyPress, this, &CommentEditor::mTagsList_KeyPress);
  return mTagsList;
}

std::shared_ptr<TaggedCommentDefs> CommentEditor::definitions() const {
  return Model().AppSettings()->TaggedCommentDefs();
}

std::shared_ptr<TaggedCommentDef> CommentEditor::definitionOf(const TaggedComment& comment) const {
  if (auto def = comment.TaggedCommentDef()) return def;
  // A comment made here knows only its tag; its definition is the one of that tag.
  const QString tag = comment.TagIdentifier();
  if (tag.isEmpty()) return nullptr;
  return definitions()->Item(tag);
}

std::shared_ptr<NamespaceProvider> CommentEditor::provider() const {
  if (!mSVProject || !mCurrentNamespaceDef) return nullptr;
  return mSVProject->GetNamespaceProvider(mCurrentNamespaceDef->ProviderName());
}

CommentCollection CommentEditor::undeletedComments() const {
  if (!mCurrentCodeElement) return {};
  const auto comments = mCurrentCodeElement->TaggedComments();
  if (!comments) return {};
  return comments->UnDeletedTaggedComments();
}

}  // namespace sv
