#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"

namespace sv {

// One attribute of a parsed element: a name-value object.
class ParserAttribute {
 public:
  virtual ~ParserAttribute() = default;

  virtual QString Key() const = 0;
  virtual void setName(const QString& value) = 0;
  virtual QString Value() const = 0;
  virtual void setValue(const QString& value) = 0;
};

using ParserAttributes = KeyedCollection<std::shared_ptr<ParserAttribute>>;

}  // namespace sv
