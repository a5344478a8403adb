// The tag list: rows of list tags, their editing, adding and deleting.
#include "comments/CommentEditor.h"

#include "foundation/ErrorTrap.h"
#include "foundation/MessageBox.h"
#include "foundation/Services.h"
#include "model/CodeItem.h"
#include "model/ModelFactory.h"
#include "model/TaggedComment.h"
#include "ui/Keys.h"
#include "ui/PropertyList.h"

namespace sv {

namespace {

const QString kAddButton = QStringLiteral("AddButton");
const QString kDeleteButton = QStringLiteral("DeleteButton");

}  // namespace

void CommentEditor::addFromRow(PropertyRow* row) {
  auto comment = Model().NewTaggedComment();
  comment->setTagIdentifier(row->Name());
  comment->setItem(mCurrentCodeElement);
  AddTaggedComment(mCurrentCodeElement, comment);
  Refresh(false);
  PropertyRow* added = TagsList()->Find(comment->Id());
  if (!added) return;
  mTagsList->setSelectedItem(added);
  mTagsList->BeginEdit();
}

void CommentEditor::mTagsList_BeforeEdit(PropertyRow* row, bool* cancel) {
  Trap(this, "mTagsList_BeforeEdit", [&] {
    if (row->Kind() != PropertyRowKind::Item) *cancel = true;
  });
}

void CommentEditor::mTagsList_BeforeExtendedEdit(PropertyRow*, bool* cancel) {
  *cancel = true;
}

void CommentEditor::mTagsList_AfterEdit(PropertyRow* row, QVariant* newValue, bool*) {
  Trap(this, "mTagsList_AfterEdit", [&] {
    row->setValue(*newValue);
    ItemChanged(row);
  });
}

void CommentEditor::mTagsList_Change(PropertyRow* row) {
  Trap(this, "mTagsList_Change", [&] {
    if (mIgnoreReset) return;
    if (!mTagsList->EditMode() || mForceChange) ItemChanged(row);
  });
}

void CommentEditor::mTagsList_Collapse(PropertyRow* row) {
  Trap(this, "mTagsList_Collapse", [&] { row->setExpanded(true); });
}

void CommentEditor::mTagsList_SelChange(PropertyRow* row) {
  Trap(this, "mTagsList_SelChange", [&] {
    if (!row) return;
    if (row->Kind() == PropertyRowKind::Heading) {
      zSetTagControls(QStringLiteral("edit"), false);
      mTagsList->setButtonVisible(kAddButton, false);
      mTagsList->setButtonVisible(kDeleteButton, false);
      return;
    }
    if (row->IsAddRow()) {
      zSetTagControls(QStringLiteral("edit"), false);
      mTagsList->setButtonVisible(kAddButton, true);
      mTagsList->setButtonVisible(kDeleteButton, false);
      return;
    }
    if (mEditInFocus) return;
    zSetTagControls(QStringLiteral("edit"), true);
    mTagsList->setButtonVisible(kDeleteButton, true);
    mTagsList->setButtonVisible(kAddButton, false);
  });
}

void CommentEditor::mTagsList_ButtonClick(PropertyRow* row, const QString& buttonKey) {
  Trap(this, "mTagsList_ButtonClick",
       [&] {
         if (buttonKey == kAddButton) {
           addFromRow(row);
           return;
         }
         if (buttonKey != kDeleteButton) return;
         int key = KeyCode::Delete;
         mTagsList_KeyDown(&key, 0);
       },
       {{"ButtonKey", buttonKey}});
}

void CommentEditor::mTagsList_ItemDblClick(PropertyRow* row) {
  Trap(this, "mTagsList_ItemDblClick", [&] {
    if (row->IsAddRow()) addFromRow(row);
  });
}

void CommentEditor::mTagsList_KeyDown(int* keyCode, int shift) {
  Trap(this, "mTagsList_KeyDown",
       [&] {
         if (*keyCode != KeyCode::Delete) return;
         *keyCode = 0;
         if (PropertyRow* row = mTagsList->SelectedItem()) {
           DeleteCommentItem(row->Key());
           return;
         }
         Services::Message().ShowMessage(
             QStringLiteral("Please select a tag which exists in the active code element"),
             Mb::OK | Mb::Exclamation, QStringLiteral("Scrivara"));
       },
       {{"KeyCode", *keyCode}, {"Shift", shift}});
}

void CommentEditor::mTagsList_KeyPress(int* keyAscii) {
  Trap(this, "mTagsList_KeyPress",
       [&] {
         const bool editing = mTagsList->EditMode();
         if (*keyAscii == KeyCode::Escape && editing) {
           mTagsList->CancelEdit();
           return;
         }
         if (*keyAscii != KeyCode::Return) return;
         PropertyRow* row = mTagsList->SelectedItem();
         if (row && row->IsAddRow()) {
           addFromRow(row);
           return;
         }
         if (editing) {
           mTagsList->CommitEdit();
           return;
         }
         mTagsList->BeginEdit();
       },
       {{"KeyAscii", *keyAscii}});
}

}  // namespace sv
