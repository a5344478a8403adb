#pragma once

#include <QString>

#include "model/AttributeDef.h"

namespace sv {

// The definition of one attribute of a meta element, with a setter for every member.
class AttributeDefinition : public AttributeDef {
 public:
  explicit AttributeDefinition(QString name) : mName(std::move(name)) {}

  QString Name() const override { return mName; }
  QString Description() const override { return mDescription; }
  void setDescription(const QString& value) { mDescription = value; }
  QString Type() const override { return mType; }
  void setType(const QString& value) { mType = value; }
  QString ListType() const override { return mListType; }
  void setListType(const QString& value) { mListType = value; }
  QString Values() const override { return mValues; }
  void setValues(const QString& value) { mValues = value; }
  QString DefaultValue() const override { return mDefaultValue; }
  void setDefaultValue(const QString& value) { mDefaultValue = value; }
  bool Required() const override { return mRequired; }
  void setRequired(bool value) { mRequired = value; }

 private:
  QString mName;
  QString mDescription;
  QString mType;
  QString mListType;
  QString mValues;
  QString mDefaultValue;
  bool mRequired = false;
};

}  // namespace sv
