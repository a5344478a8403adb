// ProjectEditor: the road of a node click into the editor, the comment clipboard, and what the
// editor's comment events do to the tree.
#include "codetree/ProjectEditor.h"

#include <QScopeGuard>

#include "codetree/ProjectView.h"
#include "codetree/UIHelpers.h"
#include "comments/CommentEditor.h"
#include "comments/RefreshWrapper.h"
#include "foundation/ErrorTrap.h"
#include "model/CodeItem.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "model/NamespaceProvider.h"
#include "model/SVContentFile.h"
#include "model/SVProject.h"
#include "model/TaggedComments.h"
#include "ui/TreeView.h"

namespace sv {

namespace {

QString qualifiedNameOf(const CodeItem& item) {
  return item.QualifiedName().value_or(QString());
}

}  // namespace

void ProjectEditor::clearEditor() {
  mEditor->Clear();
  mEditor->setCurrentCodeElement(nullptr);
}

void ProjectEditor::Project_NodeClick(TreeNode* Node) {
  Trap(this, "Project_NodeClick", [&] { loadNode(Node); },
       {{"Node", Node ? Node->Key() : QString()}});
}

void ProjectEditor::loadNode(TreeNode* Node) {
  if (!Node) return;
  mEditor->CommitEdit();
  // A group folder has no item; nor has a node whose provider no longer knows its key.
  std::shared_ptr<CodeItem> obj;
  std::shared_ptr<NamespaceDef> nd;
  if (!Node->Tag().isEmpty()) {
    const auto defs = mProject->NamespaceDefs();
    nd = defs ? defs->ItemByMoniker(Node->Tag()) : nullptr;
    const auto np =
        nd && mSVProject ? mSVProject->GetNamespaceProvider(nd->ProviderName()) : nullptr;
    if (np) {
      emit NodeClickNameSpaceDef(Node, nd);
      obj = np->GetItem(Node->Key());
    }
  }
  if (!obj) {
    clearEditor();
  } else {
    mEditor->CommitEdit();
    const auto comments = obj->TaggedComments();
    if (comments && !comments->Consolidated())
      obj->setTaggedComments(mCommentPipe.Consolidate(obj, *comments));
    // The host holds off repainting while the editor fills, and lets go on every way out.
    if (mWrapper) mWrapper->lockrefresh();
    RefreshWrapper* locked = mWrapper;
    auto unlock = qScopeGuard([locked] {
      if (locked) locked->unlockrefreshabsolute();
    });
    const TreeNode* selected = mProject->SelectedItem() ? mProject->SelectedItem() : Node;
    mEditor->Load(nd, obj, mProject->CurrentRootItem(), selected->Image(), selected->Text());
    mEditor->SetEditFocus();
  }
  UpdateCommandState();
}

bool ProjectEditor::pasteAllowed() const {
  const auto element = mEditor->CurrentCodeElement();
  if (!element) return false;
  const UIHelpers& clipboard = UIHelpers::Shared();
  return clipboard.HasCopiedComments() && clipboard.CopiedItemTypeName() == element->TypeName() &&
         clipboard.CopiedItemQualifiedName().compare(qualifiedNameOf(*element),
                                                     Qt::CaseInsensitive) != 0;
}

// Copy works wherever the author is; Paste only onto another item of the kind copied.
void ProjectEditor::UpdateCommandState() {
  mProject->setCopyCommentsEnabled(true);
  mProject->setPasteCommentsEnabled(pasteAllowed());
}

void ProjectEditor::Project_CopyCommentsRequested() {
  Trap(this, "Project_CopyCommentsRequested", [&] {
    UIHelpers::Shared().CopyComments(mEditor->CurrentCodeElement());
    // The item just copied is now the source: no pasting onto itself.
    UpdateCommandState();
  });
}

void ProjectEditor::Project_PasteCommentsRequested() {
  Trap(this, "Project_PasteCommentsRequested", [&] {
    const auto element = mEditor->CurrentCodeElement();
    if (!element) return;
    const auto comments = element->TaggedComments();
    const int count = comments ? comments->Count() : 0;
    SV_TRAP_LOCAL(count);
    UIHelpers::Shared().PasteComments(element);
    if (!comments || comments->Count() <= count) return;
    // The comments went straight into the model; the host saves what the project marks.
    if (mSVProject) mSVProject->setDirty(true);
    TreeNode* selected = mProject->SelectedItem();
    if (!selected) return;
    selected->setBold(true);
    loadNode(selected);
  });
}

void ProjectEditor::Project_AfterCommand() {
  Trap(this, "Project_AfterCommand", [&] {
    if (mWrapper) mWrapper->lockrefresh();
    RefreshWrapper* locked = mWrapper;
    auto unlock = qScopeGuard([locked] {
      if (locked) locked->unlockrefresh();
    });
    UpdateCommandState();
  });
}

void ProjectEditor::cEditor_DocumentComplete() {
  Trap(this, "cEditor_DocumentComplete", [&] { UpdateCommandState(); });
}

void ProjectEditor::Project_ItemPopulated(std::shared_ptr<CodeItem> Item,
                                          QString RelevantContentFilter) {
  Trap(this, "Project_ItemPopulated",
       [&] {
         emit ItemPopulated(Item, RelevantContentFilter);
         if (mSVContentFile) mSVContentFile->ItemPopulated(Item, RelevantContentFilter);
       },
       {{"RelevantContentFilter", RelevantContentFilter}});
}

void ProjectEditor::cEditor_TaggedCommentAdded(std::shared_ptr<CodeItem> Item,
                                               std::shared_ptr<TaggedComment> comment) {
  Trap(this, "cEditor_TaggedCommentAdded", [&] {
    if (mProject->HighlightCommentedItems())
      if (TreeNode* node = mProject->Nodes()->Find(qualifiedNameOf(*Item))) node->setBold(true);
    emit TaggedCommentAdded(Item, comment);
  });
}

void ProjectEditor::cEditor_TaggedCommentDeleted(std::shared_ptr<CodeItem> Item,
                                                 std::shared_ptr<TaggedComment> comment,
                                                 const QString& Key) {
  Trap(this, "cEditor_TaggedCommentDeleted",
       [&] {
         if (mProject->HighlightCommentedItems()) {
           if (TreeNode* node = mProject->Nodes()->Find(qualifiedNameOf(*Item)))
             node->setBold(Item->TaggedComments()->UnDeletedCount() > 0);
         }
         emit TaggedCommentDeleted(Item, comment, Key);
       },
       {{"Key", Key}});
}

void ProjectEditor::cEditor_UpdateItemImage(std::shared_ptr<NamespaceDef> namespaceDef,
                                            std::shared_ptr<CodeItem> Item) {
  (void)namespaceDef;
  Trap(this, "cEditor_UpdateItemImage", [&] {
    if (TreeNode* selected = mProject->SelectedItem()) mProject->UpdateNodeImage(selected, Item);
  });
}

}  // namespace sv
