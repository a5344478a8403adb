// Designer hosting: which designer edits a page tag, how it is made, shown, fed and let go.
#include "comments/CommentEditor.h"

#include "comments/CommentBarKeys.h"
#include "comments/CommentEditorHost.h"
#include "comments/CommentPages.h"
#include "comments/DesignerContainer.h"
#include "comments/DesignerControl.h"
#include "comments/DesignerRegistry.h"
#include "comments/IContentDesigner.h"
#include "comments/RefreshWrapper.h"
#include "foundation/ErrorTrap.h"
#include "model/CodeItem.h"
#include "model/TaggedComment.h"
#include "model/TaggedCommentDef.h"
#include "model/TaggedCommentDefs.h"
#include "model/TaggedComments.h"
#include "ui/ExplorerBar.h"
#include "ui/HtmlEditor.h"
#include "ui/PropertyList.h"

namespace sv {

namespace {

using commentbar::kFixedItems;
using commentbar::kLayoutPrefix;
using commentbar::kNoDesigner;

const QString kHTMLEdit = QStringLiteral("HTMLEdit");
const QString kTagsContainer = QStringLiteral("tagsContainer");

// A designer's control is named for its class: "SVContentDesigners5.dsrHTMLEdit" stands in
// "SVContentDesigners5dsrHTMLEdit", so two tags of one class share a control.
QString controlName(const QString& className) {
  return QString(className).remove(QLatin1Char('.'));
}

}  // namespace

QString CommentEditor::DesignerForTaggedComment(
    const std::shared_ptr<TaggedCommentDef>& def) const {
  return Trap(this, "DesignerForTaggedComment", [&]() -> QString {
    if (!def) return {};
    QString progId = def->DesignerProgID();
    if (progId.isEmpty()) progId = definitions()->DefaultDesignerProgID();
    if (progId.isEmpty()) progId = kHTMLEdit;
    return progId;
  });
}

bool CommentEditor::hasPage(const std::shared_ptr<TaggedCommentDef>& def) const {
  return def && DesignerForTaggedComment(def) != kNoDesigner;
}

DesignerControl* CommentEditor::ActiveDesignerControl() const {
  if (!mActiveTaggedCommentDef) return nullptr;
  return mDesignerContainer->Find(controlName(DesignerForTaggedComment(mActiveTaggedCommentDef)));
}

CommentCollection CommentEditor::taggedCommentsOf(
    const std::shared_ptr<TaggedCommentDef>& def) const {
  CommentCollection comments = undeletedComments();
  if (!def) return comments;
  CommentCollection tagged;
  for (const auto& comment : comments) {
    if (comment->IsHidden()) continue;
    if (comment->TagIdentifier().compare(def->TagIdentifier(), Qt::CaseInsensitive) != 0) continue;
    tagged.Add(comment, comment->Id());
  }
  return tagged;
}

CommentCollection CommentEditor::ActiveTaggedComments() const {
  return taggedCommentsOf(mActiveTaggedCommentDef);
}

DesignerCells CommentEditor::GetDataCells(const std::shared_ptr<TaggedCommentDef>& def) const {
  DesignerCells cells;
  cells.Add(DesignerCell(mModules), QStringLiteral("ModuleNames"));
  cells.Add(DesignerCell(mProjectName), QStringLiteral("ProjectName"));
  cells.Add(DesignerCell(mCurrentCodeElement), QStringLiteral("CodeElement"));
  cells.Add(DesignerCell(mAppName), QStringLiteral("AppName"));
  cells.Add(DesignerCell(mHost->BaseURL()), QStringLiteral("BaseURL"));
  if (!def) return cells;
  const QString tag = def->TagIdentifier();
  cells.Add(DesignerCell(tag), QStringLiteral("TagIdentifier"));
  // The element's collection is keyed by comment Id; only a comment kept under its tag's name
  // is found here.
  const auto comments = TaggedComments();
  if (const auto comment = comments ? comments->Item(tag) : nullptr)
    cells.Add(DesignerCell(comment), QStringLiteral("TaggedComment"));
  return cells;
}

DesignerControl* CommentEditor::zCreateDesignerControl(const std::shared_ptr<TaggedCommentDef>& def,
                                                       bool MakeVisible) {
  if (!def) return nullptr;
  const QString progId = DesignerForTaggedComment(def);
  SV_TRAP_LOCAL(progId);
  // A designer made hidden, for the page editor, leaves the one on display alone.
  if (MakeVisible) setActiveDesigner(nullptr);
  const DesignerCells cells = GetDataCells(def);
  auto designer = mDesignerRegistry->Create(progId);
  DesignerControl* control = mDesignerContainer->Add(controlName(progId), designer);
  mCreatedDesigners.Add(control->Name(), control->Name());
  control->setVisible(MakeVisible);
  if (MakeVisible) mActiveTaggedCommentDef = def;
  designer->Initialize(taggedCommentsOf(def), mCurrentCodeElement, cells, def->TagIdentifier(), {},
                       mHost.get());
  designer->Shown();
  if (MakeVisible) setActiveDesigner(designer);
  return control;
}

void CommentEditor::showTagPage(const QString& Key) {
  const auto def = Key.isEmpty() ? nullptr : definitions()->Item(Key);
  // A tag without a page is shown as an unknown one: not at all.
  mActiveTaggedCommentDef = hasPage(def) ? def : nullptr;
  if (!mActiveTaggedCommentDef) return;
  mPages->ShowTag(def);
  if (mWrapper) mWrapper->lockrefresh();

  DesignerControl* control = mDesignerContainer->Find(controlName(DesignerForTaggedComment(def)));
  if (!control) {
    if (mActiveDesigner) mActiveDesigner->Deactivate();
    control = zCreateDesignerControl(def, true);
    mDesignerContainer->setContainer(kTagsContainer);
    control->Move(0, 0, mDesignerContainer->Width(), mDesignerContainer->Height());
    control->setVisible(true);
    // Shown is shown: a new designer is active as one brought forward is.
    mActiveDesigner->setActive(true);
  } else {
    const auto designer = control->Object();
    if (mActiveDesigner && mActiveDesigner != designer) mActiveDesigner->Deactivate();
    setActiveDesigner(designer);
    designer->setActive(true);
    // A designer made hidden for the page editor is shown the first time its page is.
    control->setVisible(true);
    mDesignerContainer->BringToFront(control);
  }
  mDesignerContainer->setVisible(true);
  SetActiveDesignerText();

  mInPlaceEditorIsActive = false;
  if (mTagsList) mTagsList->setVisible(false);
  if (!mWrapper) return;
  mActiveDesigner->BindToWrapper(mWrapper);
  // Our designers load their pages at once, the HTML one included, so nothing is left to wait
  // for before the host repaints.
  mWrapper->unlockrefreshabsolute();
}

void CommentEditor::SetActiveDesignerText() {
  if (!mActiveDesigner) return;
  const QString tag =
      mActiveTaggedCommentDef ? mActiveTaggedCommentDef->TagIdentifier() : QString();
  // The design-time designer was never initialised by creation: its first showing does it.
  if (mActiveDesigner == mHTMLEdit->Object() && mHTMLEdit->Tag().isEmpty()) {
    mHTMLEdit->setVisible(true);
    mActiveDesigner->Initialize(ActiveTaggedComments(), mCurrentCodeElement,
                                GetDataCells(mActiveTaggedCommentDef), tag, {}, mHost.get());
    mHTMLEdit->setTag(QStringLiteral("Done"));
  }
  mActiveDesigner->LoadItem(mCurrentCodeElement, ActiveTaggedComments(), tag, {});
}

std::shared_ptr<IContentDesigner> CommentEditor::GetDesignerObject(const QString& TagIdentifier) {
  return Trap(this, "GetDesignerObject",
              [&]() -> std::shared_ptr<IContentDesigner> {
                if (TagIdentifier.isEmpty()) return nullptr;
                const auto def = definitions()->Item(TagIdentifier);
                if (!hasPage(def)) return nullptr;
                if (DesignerControl* control =
                        mDesignerContainer->Find(controlName(DesignerForTaggedComment(def))))
                  return control->Object();
                return zCreateDesignerControl(def, false)->Object();
              },
              {{"TagIdentifier", TagIdentifier}});
}

void CommentEditor::HideActiveDesigner() {
  if (!mActiveDesigner) return;
  mActiveDesigner->setActive(false);
  mActiveDesigner->Deactivate();
}

void CommentEditor::setActiveDesigner(std::shared_ptr<IContentDesigner> designer) {
  if (designer == mActiveDesigner) return;
  mActiveDesigner = std::move(designer);
  emit ActiveDesignerChanged();
}

HtmlEditor* CommentEditor::GetActiveHTMLEditor() const {
  return Trap(this, "GetActiveHTMLEditor", [&]() -> HtmlEditor* {
    const ExplorerBarItem* item = mEb->SelectedItem();
    const QString key = item ? item->Key() : QString();
    if (kFixedItems.contains(key, Qt::CaseInsensitive)) return nullptr;
    if (key.startsWith(kLayoutPrefix, Qt::CaseInsensitive)) return mPages->Editor();
    return mActiveDesigner ? mActiveDesigner->HTMLEditor() : nullptr;
  });
}

bool CommentEditor::DesignerContainerVisible() const {
  return mDesignerContainer->Visible();
}

void CommentEditor::BindToWrapper(RefreshWrapper* wrapper) {
  Trap(this, "BindToWrapper", [&] { mWrapper = wrapper; });
}

IContentDesignerHost& CommentEditor::DesignerHost() const {
  return *mHost;
}

void CommentEditor::setDesignerRegistry(std::shared_ptr<DesignerRegistry> registry) {
  mDesignerRegistry = registry ? std::move(registry) : DesignerRegistry::WithDefaults();
}

void CommentEditor::removeDesignerControls(const QStringList& names) {
  for (const QString& name : names) {
    if (!mCreatedDesigners.Contains(name)) continue;
    DesignerControl* control = mDesignerContainer->Find(name);
    if (control->Object() == mActiveDesigner) setActiveDesigner(nullptr);
    control->Object()->Terminate();
    mDesignerContainer->Remove(name);
    mCreatedDesigners.Remove(name);
  }
}

void CommentEditor::terminateDesigners() {
  setActiveDesigner(nullptr);
  for (const QString& name : mCreatedDesigners) {
    DesignerControl* control = mDesignerContainer->Find(name);
    control->Object()->Terminate();
    mDesignerContainer->Remove(name);
  }
  mCreatedDesigners.Clear();
  if (!mHTMLEdit) return;
  mHTMLEdit->Object()->Terminate();
  mDesignerContainer->Remove(mHTMLEdit->Name());
  mHTMLEdit = nullptr;
}

void CommentEditor::DesignerContainer_Resize() {
  Trap(this, "DesignerContainer_Resize", [&] {
    if (DesignerControl* control = ActiveDesignerControl())
      control->Move(0, 0, mDesignerContainer->Width(), mDesignerContainer->Height());
  });
}

HtmlEditor* CommentEditor::formattingEditor() const {
  if (mInPlaceEditorIsActive) return mPages->Editor();
  return mActiveDesigner ? mActiveDesigner->HTMLEditor() : nullptr;
}

void CommentEditor::InsertTable(int rows, int columns) {
  Trap(this, "InsertTable",
       [&] {
         if (HtmlEditor* editor = formattingEditor()) editor->InsertTable(rows, columns);
       },
       {{"Rows", rows}, {"Columns", columns}});
}

void CommentEditor::SetForeColorByName(const QString& colour) {
  Trap(this, "SetForeColorByName",
       [&] {
         if (HtmlEditor* editor = formattingEditor()) editor->SetForeColorByName(colour);
       },
       {{"Colour", colour}});
}

void CommentEditor::SetFillColorByName(const QString& colour) {
  Trap(this, "SetFillColorByName",
       [&] {
         if (HtmlEditor* editor = formattingEditor()) editor->SetFillColorByName(colour);
       },
       {{"Colour", colour}});
}

QString CommentEditor::GetForeColorName() const {
  return Trap(this, "GetForeColorName", [&]() -> QString {
    const HtmlEditor* editor = formattingEditor();
    return editor ? editor->GetForeColorName() : QString();
  });
}

QString CommentEditor::GetFillColorName() const {
  return Trap(this, "GetFillColorName", [&]() -> QString {
    const HtmlEditor* editor = formattingEditor();
    return editor ? editor->GetFillColorName() : QString();
  });
}

void CommentEditor::ClickEditTool(const QString& tool) {
  Trap(this, "ClickEditTool",
       [&] {
         if (HtmlEditor* editor = formattingEditor()) editor->ClickTool(tool);
       },
       {{"Tool", tool}});
}

}  // namespace sv
