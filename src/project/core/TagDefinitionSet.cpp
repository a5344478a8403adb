#include "project/core/TagDefinitionSet.h"

#include "model/TaggedCommentDef.h"

namespace sv {

std::shared_ptr<TaggedCommentDef> TagDefinitionSet::Item(const QString& tagIdentifier) const {
  return mDefs.Find(tagIdentifier).value_or(nullptr);
}

void TagDefinitionSet::Add(std::shared_ptr<TaggedCommentDef> def) {
  const QString key = def->TagIdentifier();
  mDefs.Add(std::move(def), key);
}

}  // namespace sv
