#pragma once

#include "model/ParserAttribute.h"

namespace sv {

// One attribute as the parser hands it out: its key is its name.
class NameValue : public ParserAttribute {
 public:
  NameValue(QString name, QString value) : mName(std::move(name)), mValue(std::move(value)) {}

  QString Key() const override { return mName; }
  void setName(const QString& value) override { mName = value; }
  QString Value() const override { return mValue; }
  void setValue(const QString& value) override { mValue = value; }

 private:
  QString mName;
  QString mValue;
};

}  // namespace sv
