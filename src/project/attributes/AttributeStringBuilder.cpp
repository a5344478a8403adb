#include "project/attributes/AttributeStringBuilder.h"

#include "project/attributes/NameValue.h"

namespace sv {

void AttributeStringBuilder::Parse(const QString& text) { mList = ParseAttributeList(text); }

std::shared_ptr<ParserAttribute> AttributeStringBuilder::Item(const QString& name) const {
  const qsizetype at = mList.indexOf(name, mCaseInsensitive);
  if (at < 0) return nullptr;
  const AttributePair& pair = mList.pairs[static_cast<std::size_t>(at)];
  return std::make_shared<NameValue>(pair.name, pair.value);
}

}  // namespace sv
