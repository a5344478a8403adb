#pragma once

#include <QString>
#include <memory>

#include "model/ItemRange.h"
#include "model/ModelTypes.h"

namespace sv {

// The comments of one code item, keyed by comment Id. Deleted comments may stay in the
// collection as tombstones (Status 3) until the store has purged them; UnDeletedTaggedComments
// leaves them out.
class TaggedComments {
 public:
  virtual ~TaggedComments() = default;

  virtual int Count() const = 0;
  virtual std::shared_ptr<TaggedComment> Item(int index) const = 0;
  virtual std::shared_ptr<TaggedComment> Item(const QString& key) const = 0;
  virtual void Add(std::shared_ptr<TaggedComment> comment, const QString& key,
                   const CollectionPos& before = {}, const CollectionPos& after = {}) = 0;
  virtual void Remove(const QString& key) = 0;
  virtual int UnDeletedCount() const = 0;
  virtual CommentCollection UnDeletedTaggedComments() const = 0;
  // False while the collection still needs the comments of other sources merged into it.
  virtual bool Consolidated() const = 0;

  ItemIterator<TaggedComments, std::shared_ptr<TaggedComment>> begin() const { return {this, 1}; }
  ItemIterator<TaggedComments, std::shared_ptr<TaggedComment>> end() const {
    return {this, Count() + 1};
  }
};

}  // namespace sv
