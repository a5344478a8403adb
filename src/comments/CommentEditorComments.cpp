// How comments enter, change and leave an element, and the flags that stand for comments.
#include "comments/CommentEditor.h"

#include "comments/CommentBarKeys.h"
#include "comments/CommentPages.h"
#include "comments/ElementFacts.h"
#include "comments/IContentDesigner.h"
#include "foundation/ErrorTrap.h"
#include "model/CodeItem.h"
#include "model/ModelFactory.h"
#include "model/TaggedComment.h"
#include "model/TaggedCommentDef.h"
#include "model/TaggedCommentDefs.h"
#include "model/TaggedComments.h"
#include "ui/CheckBox.h"
#include "ui/PropertyList.h"
#include "widgets/EBCheckBoxes.h"

namespace sv {

namespace {

const QString kImplicitTag = QStringLiteral("##");

// The element kinds whose comments are written with the element's name. Parameters, enum
// members and type parameters are documented on their container. A variable is too when it is a
// field of a user-defined type; for a legacy tag also when it is no module variable, and a
// property always.
const QStringList kQualifiedKinds = {QStringLiteral("Parameter"), QStringLiteral("EnumMember"),
                                     QStringLiteral("TypeParameter")};
const QString kVariableKind = QStringLiteral("Variable");
const QString kModuleKind = QStringLiteral("Component");
const QString kLegacyQualifiedKind = QStringLiteral("Property");
const QString kUDTKind = QStringLiteral("UDT");

bool isKind(const std::shared_ptr<CodeItem>& item, const QString& kind) {
  return item && item->TypeName().compare(kind, Qt::CaseInsensitive) == 0;
}

}  // namespace

void CommentEditor::AddTaggedComment(const std::shared_ptr<CodeItem>& Item,
                                     const std::shared_ptr<TaggedComment>& comment) {
  Trap(this, "TaggedCommentAdded",
       [&] {
         Item->TaggedComments()->Add(comment, comment->Id());
         // Listeners see the comment in the collection with only its tag and text.
         emit TaggedCommentAdded(Item, comment);
         if (Item == mCurrentCodeElement) UpdateGroupItemStatus();
         const QString tag = comment->TagIdentifier();
         if (QualifierRequired(tag, definitionOf(*comment), Item))
           comment->setQualifier(Item->Name().value_or(QString()));
         comment->setItem(Item);
         if (mCommentType == XMLComments) comment->setXMLCommentType(GetXMLCommentType(comment));
         comment->setStatus(CommentStatus::New);
         setDirty(true);
       },
       {{"Item", DumpVariant::Object(Item, QStringLiteral("CodeItem"))},
        {"TaggedComment", DumpVariant::Object(comment, QStringLiteral("TaggedComment"))}});
}

void CommentEditor::DeleteTaggedComment(const std::shared_ptr<CodeItem>& Item,
                                        const std::shared_ptr<TaggedComment>& comment,
                                        const QString& Key) {
  Trap(this, "TaggedCommentDeleted",
       [&] {
         // A stored comment stays behind as a tombstone so that the store can delete it later.
         if (!mKeepTombstones || comment->Status() == CommentStatus::New)
           Item->TaggedComments()->Remove(comment->Id());
         comment->setStatus(CommentStatus::Deleted);
         emit TaggedCommentDeleted(Item, comment, comment->Id());
         if (Item == mCurrentCodeElement) UpdateGroupItemStatus();
         setDirty(true);
       },
       {{"Item", DumpVariant::Object(Item, QStringLiteral("CodeItem"))},
        {"TaggedComment", DumpVariant::Object(comment, QStringLiteral("TaggedComment"))},
        {"Key", Key}});
}

void CommentEditor::ChangeTaggedComment(const std::shared_ptr<CodeItem>& Item,
                                        const std::shared_ptr<TaggedComment>& comment) {
  Trap(this, "TaggedCommentChanged",
       [&] {
         emit TaggedCommentChanged(Item, comment, comment->Id());
         const auto def = definitionOf(*comment);
         if (comment->TagIdentifier().isEmpty() || (def && def->IsGeneral()))
           mPages->UpdateDescription(Item, false);
         setDirty(true);
       },
       {{"Item", DumpVariant::Object(Item, QStringLiteral("CodeItem"))},
        {"TaggedComment", DumpVariant::Object(comment, QStringLiteral("TaggedComment"))}});
}

bool CommentEditor::QualifierRequired(const QString& TagIdentifier,
                                      const std::shared_ptr<TaggedCommentDef>& def,
                                      const std::shared_ptr<CodeItem>& CodeElement) const {
  return Trap(this, "QualifierRequired",
              [&] {
                // An empty element is of no kind, so no test below holds for it.
                if (!CodeElement) return false;
                auto parentIs = [&](const QString& kind) {
                  return isKind(mFacts->Parent(CodeElement, provider()), kind);
                };
                const QString kind = CodeElement->TypeName();
                bool required = false;
                if (TagIdentifier != kImplicitTag)
                  required = kQualifiedKinds.contains(kind, Qt::CaseInsensitive) ||
                             (isKind(CodeElement, kVariableKind) && parentIs(kUDTKind));
                if (!required && def && !def->Qualifier().isEmpty())
                  required = (isKind(CodeElement, kVariableKind) && !parentIs(kModuleKind)) ||
                             isKind(CodeElement, kLegacyQualifiedKind);
                return required;
              },
              {{"TagIdentifier", TagIdentifier}});
}

std::shared_ptr<TaggedComment> CommentEditor::GetTaggedCommentByKey(const QString& Key) const {
  return Trap(this, "GetTaggedCommentByKey",
              [&]() -> std::shared_ptr<TaggedComment> {
                const auto comments = TaggedComments();
                if (!comments) return nullptr;
                for (const auto& comment : *comments)
                  if (comment->Id() == Key) return comment;
                return nullptr;
              },
              {{"Key", Key}});
}

int CommentEditor::FindTaggedComments(const CommentCollection& col, const QString& TagIdentifier) {
  int count = 0;
  for (const auto& comment : col)
    if (comment->TagIdentifier().compare(TagIdentifier, Qt::CaseInsensitive) == 0) ++count;
  return count;
}

QString CommentEditor::GetXMLCommentType(const std::shared_ptr<TaggedComment>& tc) const {
  return Trap(this, "GetXMLCommentType", [&]() -> QString {
    if (tc->TagIdentifier() == kImplicitTag) return QStringLiteral("summary");
    const auto def = definitionOf(*tc);
    if (!def || def->XMLCommentTypes().isEmpty()) return {};
    return def->XMLCommentTypes().section(QLatin1Char(','), 0, 0);
  });
}

void CommentEditor::ItemChanged(PropertyRow* row) {
  if (!row || row->Key().isEmpty()) return;
  const auto comment = GetTaggedCommentByKey(row->Key());
  if (!comment) return;
  comment->setText(row->Value().toString());
  comment->setTagIdentifier(row->Name());
  ChangeTaggedComment(mCurrentCodeElement, comment);
}

void CommentEditor::CommitEdit() {
  Trap(this, "CommitEdit", [&] {
    if (mActiveDesigner) mActiveDesigner->CommitEdit();
    if (!mTagsList || !mTagsList->EditMode() || !mTagsList->SelectedItem()) return;
    const QString key = mTagsList->SelectedItem()->Key();
    SV_TRAP_LOCAL(key);
    const auto comment = GetTaggedCommentByKey(key);
    if (!comment) return;
    mTagsList->CommitEdit();
    PropertyRow* row = mTagsList->Find(key);
    if (row && row->Value().toString() != comment->Text()) ItemChanged(row);
  });
}

void CommentEditor::DeleteCommentItem(const QString& Key) {
  Trap(this, "DeleteCommentItem",
       [&] {
         // The key may belong to the row that is about to go.
         const QString key = Key;
         PropertyList* list = TagsList();
         list->LockRedraw();
         PropertyRow* row = list->Find(key);
         if (!row || row->IsAddRow()) {
           list->UnlockRedraw();
           return;
         }
         mIgnoreReset = true;
         const int position = row->Index();
         SV_TRAP_LOCAL(position);
         PropertyRow* next = nullptr;
         if (position < list->Count()) {
           PropertyRow* after = list->Item(position + 1);
           if (!after->IsAddRow() && after->Kind() != PropertyRowKind::Heading) next = after;
         }
         if (!next && position > 1) next = list->Item(position - 1);
         list->Remove(position);
         if (const auto comment = GetTaggedCommentByKey(key))
           DeleteTaggedComment(mCurrentCodeElement, comment);
         zSetTagControls(QStringLiteral("edit"), false);
         list->setSelectedItem(next);
         mIgnoreReset = false;
         list->UnlockRedraw();
       },
       {{"Key", Key}});
}

void CommentEditor::FlagChecked(const QString& Key, bool Checked) {
  Trap(this, "FlagChecked",
       [&] {
         for (int index = 1; index < mCheckBoxes->Count(); ++index) {
           CheckBox* box = mCheckBoxes->Item(index);
           if (box->Tag() == Key) setCheckboxValue(box, Checked ? 1 : 0);
         }
         if (Checked) {
           auto comment = Model().NewTaggedComment();
           comment->setItem(mCurrentCodeElement);
           comment->setTagIdentifier(Key);
           AddTaggedComment(mCurrentCodeElement, comment);
         } else {
           // Tombstones come first if they stand first: deleting one again is harmless, and
           // the live comment then stays.
           std::shared_ptr<TaggedComment> found;
           for (const auto& comment : *mCurrentCodeElement->TaggedComments()) {
             if (comment->TagIdentifier().compare(Key, Qt::CaseInsensitive) != 0) continue;
             found = comment;
             break;
           }
           if (found) DeleteTaggedComment(mCurrentCodeElement, found);
         }
         emit UpdateItemImage(mCurrentNamespaceDef, mCurrentCodeElement);
       },
       {{"Key", Key}, {"Checked", Checked}});
}

void CommentEditor::setCheckboxValue(CheckBox* box, int value) {
  if (box->Value() == value) return;
  // Writing a value raises the box's Click; the flag is being set by code, not by the author.
  const bool posting = mPostingtoCheckboxes;
  mPostingtoCheckboxes = true;
  box->setValue(value);
  mPostingtoCheckboxes = posting;
}

void CommentEditor::TickFlagCheckbox(const QString& TagID) {
  if (mCheckBoxes->Count() < 2) return;
  for (int index = 1; index < mCheckBoxes->Count(); ++index) {
    CheckBox* box = mCheckBoxes->Item(index);
    if (box->Tag().compare(TagID, Qt::CaseInsensitive) == 0) setCheckboxValue(box, 1);
  }
}

void CommentEditor::UnloadFlagCheckboxes() {
  mCheckBoxes->Clear();
  // The pane counts the boxes placed in it; a new set starts at its top again.
  ExplorerBarItem* container = mEb->Group(commentbar::kFlags)->Item(commentbar::kContainer);
  ExplorerBarClient client = container->Client();
  client.Tag = 0;
  container->setClient(client);
}

void CommentEditor::chkExplorerBar_Click(int Index) {
  Trap(this, "chkExplorerBar_Click",
       [&] {
         if (mPostingtoCheckboxes) return;
         const CheckBox* box = mCheckBoxes->Item(Index);
         FlagChecked(box->Tag(), box->Value() == 1);
       },
       {{"Index", Index}});
}

}  // namespace sv
