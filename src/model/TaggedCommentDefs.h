#pragma once

#include <QString>
#include <memory>

#include "model/ItemRange.h"

namespace sv {

class TaggedCommentDef;

// All tag definitions, in configuration order, keyed by tag identifier.
class TaggedCommentDefs {
 public:
  virtual ~TaggedCommentDefs() = default;

  // The designer class used when a definition names none.
  virtual QString DefaultDesignerProgID() const = 0;
  virtual int Count() const = 0;
  virtual std::shared_ptr<TaggedCommentDef> Item(int index) const = 0;
  // The definition of a tag identifier; null when there is none.
  virtual std::shared_ptr<TaggedCommentDef> Item(const QString& tagIdentifier) const = 0;

  ItemIterator<TaggedCommentDefs, std::shared_ptr<TaggedCommentDef>> begin() const {
    return {this, 1};
  }
  ItemIterator<TaggedCommentDefs, std::shared_ptr<TaggedCommentDef>> end() const {
    return {this, Count() + 1};
  }
};

}  // namespace sv
