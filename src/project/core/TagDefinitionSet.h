#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"
#include "model/TaggedCommentDefs.h"

namespace sv {

// Tag definitions in the order added, keyed by tag identifier without regard to case.
class TagDefinitionSet : public TaggedCommentDefs {
 public:
  QString DefaultDesignerProgID() const override { return mDefaultDesignerProgID; }
  void setDefaultDesignerProgID(const QString& value) { mDefaultDesignerProgID = value; }
  int Count() const override { return mDefs.Count(); }
  // Raises SubscriptOutOfRange for a bad index.
  std::shared_ptr<TaggedCommentDef> Item(int index) const override { return mDefs.Item(index); }
  // Null when the identifier has no definition.
  std::shared_ptr<TaggedCommentDef> Item(const QString& tagIdentifier) const override;
  // Raises DuplicateKey for an identifier already defined.
  void Add(std::shared_ptr<TaggedCommentDef> def);

 private:
  QString mDefaultDesignerProgID;
  KeyedCollection<std::shared_ptr<TaggedCommentDef>> mDefs;
};

}  // namespace sv
