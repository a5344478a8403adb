// The explorer bar and the toolbar: which page has content, which page is on display.
#include "comments/CommentEditor.h"

#include <QScopeGuard>
#include <QSet>

#include "comments/CommentBarKeys.h"
#include "comments/CommentPages.h"
#include "comments/DesignerContainer.h"
#include "comments/IContentDesigner.h"
#include "comments/RefreshWrapper.h"
#include "foundation/DynamicHelp.h"
#include "foundation/ErrorTrap.h"
#include "model/CodeItem.h"
#include "model/TaggedComment.h"
#include "model/TaggedCommentDef.h"
#include "model/TaggedCommentDefs.h"
#include "ui/CheckBox.h"
#include "ui/Dock.h"
#include "ui/ExplorerBar.h"
#include "ui/ImageList.h"
#include "ui/PropertyList.h"
#include "widgets/EBCheckBoxes.h"
#include "widgets/frmTipPopup.h"

namespace sv {

namespace {

using commentbar::kContainer;
using commentbar::kLayoutPrefix;
using commentbar::kOther;

const QString kPagesPopup = QStringLiteral("p-fullpageedit");
const QString kFlagsPopup = QStringLiteral("Flags");
const QString kTipPopup = QStringLiteral("TipPopup");
const QString kFlagPrefix = QStringLiteral("flag:");
const QString kTicked = QStringLiteral("_ticked");
const QString kTick = QStringLiteral("tick");

// An item's image without its ticked look: "summary_ticked" is "summary", and "tick", which
// an item without an image of its own shows, is no image.
QString plainImage(const QString& image) {
  if (image == kTick) return {};
  if (image.endsWith(kTicked)) return image.chopped(kTicked.size());
  return image;
}

bool startsWith(const QString& text, const QString& prefix) {
  return text.startsWith(prefix, Qt::CaseInsensitive);
}

}  // namespace

void CommentEditor::UpdateGroupItemStatus() {
  // The tags the element has comments of, in lower case; "##" counts for "Description".
  QSet<QString> tags;
  for (const auto& comment : undeletedComments())
    if (comment->Item() == mCurrentCodeElement) tags.insert(comment->TagIdentifier().toLower());
  const bool hasImplicit = tags.contains(QStringLiteral("##"));

  for (const ExplorerBarGroup* group : mEb->Groups()) {
    if (group->Key() == QLatin1String("main") || group->Key() == QLatin1String("flags")) continue;
    for (ExplorerBarItem* item : group->Items()) {
      if (!item->Visible() || !item->Enabled() || item->Key() == kOther) continue;
      const bool hit = tags.contains(item->Key().toLower()) ||
                       (hasImplicit && item->Caption() == QLatin1String("Description"));
      const QString plain = plainImage(item->Image());
      item->setTicked(hit);
      if (hit)
        item->setImage(plain.isEmpty() ? kTick : plain + kTicked);
      else
        item->setImage(plain);
      if (DockCommand* command = mDock->FindCommand(item->Key()))
        command->setImage(hit ? plain.toLower() + kTicked : plain.toLower());
    }
  }
  ExplorerBarItem* other = mEb->Group(kOther)->Item(kOther);
  other->setImage(other->Ticked() ? kOther + kTicked : kOther);

  if (!mEb->Group(QStringLiteral("flags"))->Visible() || mCheckBoxes->Count() < 2) return;
  bool anyTicked = false;
  for (int index = 1; index < mCheckBoxes->Count(); ++index) {
    const CheckBox* box = mCheckBoxes->Item(index);
    if (DockCommand* command = mDock->FindCommand(kFlagPrefix + box->Tag()))
      command->setValue(box->Value());
    anyTicked = anyTicked || box->Value() == 1;
  }
  if (DockCommand* flags = mDock->FindCommand(kFlagsPopup))
    flags->setImage(anyTicked ? QStringLiteral("flags_ticked") : QStringLiteral("flags"));
}

void CommentEditor::ClearDockCommentTypes() {
  QStringList keys;
  for (const DockCommand* command : mDock->Band(QLatin1String(ToolbarBand))->Commands())
    keys << command->Key();
  for (const QString& key : keys) mDock->RemoveCommand(key);
}

void CommentEditor::PopulateToolbar() {
  ClearDockCommentTypes();
  DockBand* band = mDock->Band(QLatin1String(ToolbarBand));
  const auto defs = definitions();
  for (const ExplorerBarGroup* group : mEb->Groups()) {
    for (const ExplorerBarItem* item : group->Items()) {
      if (!item->Visible() || !item->Enabled() || item->Key() == kContainer) continue;
      if (group->Key() == QLatin1String("main")) {
        DockCommand* pages = mDock->FindCommand(kPagesPopup);
        if (!pages) {
          pages = mDock->AddCommand(kPagesPopup, DockCommandType::Popup, group->Caption(), band);
          pages->setImage(QStringLiteral("fullpageedit"));
        }
        mDock->AddEntry(pages, item->Key(), DockCommandType::Button, item->Caption());
        continue;
      }
      if (item->Key() == kOther) {
        DockCommand* other =
            mDock->AddCommand(kOther, DockCommandType::Check, item->Caption(), band);
        other->setImage(kOther);
        other->setBeginGroup(true);
        continue;
      }
      const auto def = defs->Item(item->Key());
      const QString image = def ? def->ImageName().toLower() : QString();
      // A tag without an icon of its own has no button.
      if (image.isEmpty() || !mImages->Exists(image)) continue;
      DockCommand* command =
          mDock->AddCommand(item->Key(), DockCommandType::Check, item->Caption(), band);
      command->setImage(image);
      command->setToolTipText(item->ToolTip());
    }
  }
  if (mCheckBoxes->Count() >= 2) {
    DockCommand* flags = mDock->AddCommand(kFlagsPopup, DockCommandType::Popup, kFlagsPopup, band);
    flags->setImage(QStringLiteral("flags"));
    for (int index = 1; index < mCheckBoxes->Count(); ++index) {
      const CheckBox* box = mCheckBoxes->Item(index);
      DockCommand* entry = mDock->AddEntry(flags, kFlagPrefix + box->Tag(), DockCommandType::Check,
                                           mCheckBoxes->Captions().value(index));
      entry->setValue(box->Value());
    }
  }
  mDock->AddCommand(kTipPopup, DockCommandType::Popup, {}, band)->setBeginGroup(true);
}

void CommentEditor::SelectCommentType(const QString& Key, bool ForceRefresh) {
  Trap(this, "SelectCommentType",
       [&] {
         {
           const bool populating = mPopulating;
           mPopulating = true;
           auto restore = qScopeGuard([this, populating] { mPopulating = populating; });
           ExplorerBarItem* item = Key.isEmpty() ? nullptr : mEb->FindItem(Key);
           if (Key.isEmpty()) mEb->setSelectedItem(nullptr);
           if (item && !item->Selected()) item->setSelected(true);
         }
         {
           mDock->LockRedraw();
           auto unlock = qScopeGuard([this] { mDock->UnlockRedraw(); });
           const bool layout = startsWith(Key, QStringLiteral("inplaceedit:"));
           for (DockCommand* command : mDock->Commands()) {
             if (command->Type() != DockCommandType::Check || !command->Visible()) continue;
             if (startsWith(command->Key(), kFlagPrefix)) continue;
             command->setValue(
                 !layout && command->Key().compare(Key, Qt::CaseInsensitive) == 0 ? 1 : 0);
           }
           if (layout) {
             if (DockCommand* pages = mDock->FindCommand(kPagesPopup)) {
               for (DockCommand* entry : pages->Entries())
                 if (entry->Key().compare(Key, Qt::CaseInsensitive) == 0)
                   pages->setCurrentEntry(entry);
               pages->setValue(1);
             }
           }
         }
         CommentTypeSelected(Key);
       },
       {{"Key", Key}, {"ForceRefresh", ForceRefresh}});
}

void CommentEditor::SelectInPlaceEditLayout(const QString& PageLayoutName) {
  Trap(this, "SelectInPlaceEditLayout",
       [&] {
         const QString key = QStringLiteral("inplaceedit:") + PageLayoutName;
         if (ExplorerBarItem* item = mEb->Group(QStringLiteral("main"))->FindItem(key))
           item->setSelected(true);
       },
       {{"PageLayoutName", PageLayoutName}});
}

void CommentEditor::CommentTypeSelected(const QString& Key) {
  if (mActiveDesigner) mActiveDesigner->CommitEdit();
  bool RefreshNow = false;
  DockCommand* tip = mDock->FindCommand(kTipPopup);
  if (Key.compare(kOther, Qt::CaseInsensitive) == 0) {
    mPages->ShowList();
    mInPlaceEditorIsActive = false;
    // The list is made on its first display, and the refresh fills it.
    RefreshNow = !mTagsList;
    TagsList()->setVisible(true);
    // The list comes forward, in front of the designers: their panel is hidden.
    mDesignerContainer->setVisible(false);
    HideActiveDesigner();
    if (mWrapper) mWrapper->BindTo(true, nullptr);
    setActiveDesigner(nullptr);
    if (tip) tip->setEnabled(false);
  } else if (startsWith(Key, kLayoutPrefix)) {
    mPages->ShowLayout(mCurrentCodeElement, Key.section(QLatin1Char(':'), 1));
    HideActiveDesigner();
    if (mTagsList) mTagsList->setVisible(false);
    mDesignerContainer->setVisible(false);
    mInPlaceEditorIsActive = true;
    setActiveDesigner(nullptr);
    if (tip) tip->setEnabled(false);
  } else if (Key != kContainer) {
    showTagPage(Key);
    if (!mActiveTaggedCommentDef) return;
    if (tip) tip->setEnabled(true);
  }
  if (RefreshNow)
    Refresh(false);
  else if (mDynamicHelpHost)
    mDynamicHelpHost->ContextChanged();
}

void CommentEditor::eb_SelChange(ExplorerBarItem* item) {
  Trap(this, "eb_SelChange", [&] {
    if (mPopulating || !item || !mCurrentCodeElement) return;
    // The author chose this page: the next element keeps it.
    item->setTag({});
    const QString key = item->Key();
    SelectCommentType(key);
    SetEditFocus();
  });
}

void CommentEditor::DockCommentTypes_CommandClick(DockCommand* command) {
  Trap(this, "DockCommentTypes_CommandClick", [&] {
    if (mPopulating) return;
    const QString key = command->Key();
    SV_TRAP_LOCAL(key);
    if (!startsWith(key, kFlagPrefix)) {
      SelectCommentType(key);
      SetEditFocus();
      return;
    }
    // The dock has toggled the command already; its value is the flag's new state.
    const QString tag = key.mid(kFlagPrefix.size());
    const int value = command->Value();
    for (int index = 1; index < mCheckBoxes->Count(); ++index)
      if (mCheckBoxes->Item(index)->Tag() == tag) setCheckboxValue(mCheckBoxes->Item(index), value);
    FlagChecked(tag, value == 1);
  });
}

void CommentEditor::DockCommentTypes_PopupWindowShowing(DockCommand* popup) {
  Trap(this, "DockCommentTypes_PopupWindowShowing", [&] {
    if (popup->Key() != kTipPopup || !mActiveTaggedCommentDef) return;
    mTipPopup->setTipText(QStringLiteral("<p><b>") + mActiveTaggedCommentDef->Caption() +
                          QStringLiteral("</b></p><p>") + mActiveTaggedCommentDef->Description() +
                          QStringLiteral("</p>"));
  });
}

}  // namespace sv
