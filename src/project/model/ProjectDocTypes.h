#pragma once

#include <QString>
#include <memory>

#include "model/DocTypes.h"
#include "model/KeyedCollection.h"

namespace sv {

class ProjectDocType;

// The document types a project knows, keyed by Key, in the order added. SelectedDocTypes
// answers a fresh collection of the selected ones.
class ProjectDocTypes : public DocTypes {
 public:
  explicit ProjectDocTypes(std::shared_ptr<bool> dirty) : mDirty(std::move(dirty)) {}

  std::shared_ptr<DocType> Item(int index) const override;
  std::shared_ptr<DocType> Item(const QString& key) const override;
  int Count() const override { return mTypes.Count(); }
  std::shared_ptr<DocTypes> SelectedDocTypes() const override;
  std::shared_ptr<DocType> HelpTemplatesFrom() const override { return mHelpTemplatesFrom; }
  void setHelpTemplatesFrom(const std::shared_ptr<DocType>& docType) override;
  std::shared_ptr<DocType> Lookup(const QString& templateName) const override;
  // The namespace definitions of the selected types: one type's own set, or a merge of several
  // by definition key in which the first type's definition of a key wins.
  std::shared_ptr<NamespaceDefs> NameSpaces() const override;

  // The concrete type of a key; null when the project has none.
  std::shared_ptr<ProjectDocType> Find(const QString& key) const;
  // Adds a type, or answers the existing one of that key.
  std::shared_ptr<ProjectDocType> Add(const QString& key, const QString& caption,
                                      const QString& templateName);
  void Remove(const QString& key);

 private:
  std::shared_ptr<bool> mDirty;
  KeyedCollection<std::shared_ptr<ProjectDocType>> mTypes;
  std::shared_ptr<DocType> mHelpTemplatesFrom;
};

}  // namespace sv
