#pragma once

#include <vector>

#include "model/StringBuilder.h"
#include "project/attributes/AttributeList.h"

namespace sv {

// The name-value parser of the model: reads attribute text with ParseAttributeList and answers
// attributes by name, folding case when asked to. What is not a well-formed pair is skipped.
class AttributeStringBuilder : public StringBuilder {
 public:
  void setCaseInsensitive(bool value) override { mCaseInsensitive = value; }
  void Parse(const QString& text) override;
  std::shared_ptr<ParserAttribute> Item(const QString& name) const override;

 private:
  bool mCaseInsensitive = false;
  AttributeList mList;
};

}  // namespace sv
