#include "codetree/CommentPipe.h"

#include <QSet>

#include "model/CodeItem.h"
#include "model/ModelFactory.h"
#include "model/SVContentFile.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"

namespace sv {

std::shared_ptr<TaggedComments> CommentPipe::Consolidate(const std::shared_ptr<CodeItem>& item,
                                                         const TaggedComments& comments) const {
  auto complete = Model().NewTaggedComments();
  QSet<QString> ids;
  const auto add = [&](const std::shared_ptr<TaggedComment>& comment) {
    const QString id = comment->Id();
    if (ids.contains(id)) return;
    ids.insert(id);
    complete->Add(comment, id);
  };
  for (const auto& comment : comments) add(comment);
  if (const auto contentFile = mContentFile.lock())
    for (const auto& comment : contentFile->CommentsFor(*item)) {
      if (!comment->Item()) comment->setItem(item);
      add(comment);
    }
  return complete;
}

}  // namespace sv
