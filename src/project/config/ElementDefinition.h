#pragma once

#include <QString>
#include <memory>

#include "model/ElementDef.h"

namespace sv {

// The definition of one kind of meta element, with a setter for every member. Its attributes are
// its own collection, keyed by name.
class ElementDefinition : public ElementDef {
 public:
  using AttributeCollection = KeyedCollection<std::shared_ptr<AttributeDef>>;

  explicit ElementDefinition(QString name)
      : mName(std::move(name)), mAttributes(std::make_shared<AttributeCollection>()) {}

  QString Name() const override { return mName; }
  QString Description() const override { return mDescription; }
  void setDescription(const QString& value) { mDescription = value; }
  QString Category() const override { return mCategory; }
  void setCategory(const QString& value) { mCategory = value; }
  QString NameSpaces() const override { return mNameSpaces; }
  void setNameSpaces(const QString& value) { mNameSpaces = value; }
  bool ExcludedFromPage() const override { return mExcludedFromPage; }
  void setExcludedFromPage(bool value) { mExcludedFromPage = value; }
  std::shared_ptr<AttributeCollection> Attributes() const override { return mAttributes; }
  // Raises DuplicateKey for a name already present.
  void AddAttribute(std::shared_ptr<AttributeDef> attribute) {
    const QString name = attribute->Name();
    mAttributes->Add(std::move(attribute), name);
  }

 private:
  QString mName;
  QString mDescription;
  QString mCategory;
  QString mNameSpaces;
  bool mExcludedFromPage = false;
  std::shared_ptr<AttributeCollection> mAttributes;
};

}  // namespace sv
