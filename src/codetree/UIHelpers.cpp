#include "codetree/UIHelpers.h"

#include "model/CodeItem.h"
#include "model/ModelFactory.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"

namespace sv {

UIHelpers& UIHelpers::Shared() {
  static UIHelpers helpers;
  return helpers;
}

void UIHelpers::CopyComments(const std::shared_ptr<CodeItem>& element) {
  if (!element) return;
  std::vector<CopiedComment> copied;
  if (const auto comments = element->TaggedComments()) {
    for (const auto& comment : comments->UnDeletedTaggedComments())
      copied.push_back({comment->TagIdentifier(), comment->Text(), comment->XMLCommentType(),
                        comment->IsHidden(), !comment->Qualifier().isEmpty()});
  }
  mComments = std::move(copied);
  mTypeName = element->TypeName();
  mQualifiedName = element->QualifiedName().value_or(QString());
}

int UIHelpers::PasteComments(const std::shared_ptr<CodeItem>& element) {
  if (!element) return 0;
  const auto comments = element->TaggedComments();
  if (!comments) return 0;
  int added = 0;
  for (const CopiedComment& copied : mComments) {
    auto comment = Model().NewTaggedComment();
    comment->setTagIdentifier(copied.tagIdentifier);
    comment->setText(copied.text);
    comment->setXMLCommentType(copied.xmlCommentType);
    comment->setIsHidden(copied.isHidden);
    // A qualifier is the name of the element the comment hangs on, so it follows the target.
    if (copied.qualified) comment->setQualifier(element->Name().value_or(QString()));
    comment->setItem(element);
    comment->setStatus(CommentStatus::New);
    comments->Add(comment, comment->Id());
    ++added;
  }
  return added;
}

void UIHelpers::ClearCopiedComments() {
  mComments.clear();
  mTypeName.clear();
  mQualifiedName.clear();
}

}  // namespace sv
