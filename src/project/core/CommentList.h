#pragma once

#include "model/TaggedComments.h"

namespace sv {

// The comments of one item, keyed by Id. A deleted comment (Status Deleted) stays as a tombstone
// until it is removed, so that a save can delete it from the store; the UnDeleted members leave
// tombstones out.
class CommentList : public TaggedComments {
 public:
  int Count() const override { return mComments.Count(); }
  std::shared_ptr<TaggedComment> Item(int index) const override { return mComments.Item(index); }
  // Null for a missing key.
  std::shared_ptr<TaggedComment> Item(const QString& key) const override;
  // Raises DuplicateKey for a key already present.
  void Add(std::shared_ptr<TaggedComment> comment, const QString& key,
           const CollectionPos& before = {}, const CollectionPos& after = {}) override;
  // Raises InvalidCall for a missing key.
  void Remove(const QString& key) override { mComments.Remove(key); }
  int UnDeletedCount() const override;
  CommentCollection UnDeletedTaggedComments() const override;
  bool Consolidated() const override { return mConsolidated; }
  void setConsolidated(bool value) { mConsolidated = value; }

 private:
  CommentCollection mComments;
  bool mConsolidated = true;
};

}  // namespace sv
