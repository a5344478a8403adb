#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"
#include "model/ParserAttribute.h"

namespace sv {

class ParserElement;
using ParserElements = KeyedCollection<std::shared_ptr<ParserElement>>;

// An element of a parsed document: literal text or a meta element.
class ParserElement {
 public:
  static constexpr int LiteralText = 0;
  static constexpr int MetaElement = 2;

  virtual ~ParserElement() = default;

  virtual int ElementType() const = 0;
  virtual QString Name() const = 0;
  virtual std::shared_ptr<ParserAttributes> Attributes() const = 0;
  virtual void setAttributes(std::shared_ptr<ParserAttributes> attributes) = 0;
  virtual QString Text() const = 0;
  virtual void setText(const QString& value) = 0;
  // The collection the element belongs to; it does not keep it alive.
  virtual std::shared_ptr<ParserElements> Parent() const = 0;
  virtual void setParent(const std::shared_ptr<ParserElements>& parent) = 0;
  // The whole element in meta document form.
  virtual QString SourceText() const = 0;
};

}  // namespace sv
