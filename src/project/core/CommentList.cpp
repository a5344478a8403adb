#include "project/core/CommentList.h"

#include "model/TaggedComment.h"

namespace sv {

namespace {
bool IsTombstone(const TaggedComment& comment) {
  return comment.Status() == CommentStatus::Deleted;
}
}  // namespace

std::shared_ptr<TaggedComment> CommentList::Item(const QString& key) const {
  return mComments.Find(key).value_or(nullptr);
}

void CommentList::Add(std::shared_ptr<TaggedComment> comment, const QString& key,
                      const CollectionPos& before, const CollectionPos& after) {
  mComments.Add(std::move(comment), key, before, after);
}

int CommentList::UnDeletedCount() const {
  int count = 0;
  for (const auto& comment : mComments)
    if (!IsTombstone(*comment)) ++count;
  return count;
}

CommentCollection CommentList::UnDeletedTaggedComments() const {
  CommentCollection live;
  for (int i = 1; i <= mComments.Count(); ++i) {
    const auto& comment = mComments.Item(i);
    if (!IsTombstone(*comment)) live.Add(comment, mComments.KeyAt(i));
  }
  return live;
}

}  // namespace sv
