#pragma once

#include <QString>
#include <memory>

#include "model/AttributeDef.h"
#include "model/KeyedCollection.h"

namespace sv {

// The definition of a meta element.
class ElementDef {
 public:
  virtual ~ElementDef() = default;

  virtual QString Name() const = 0;
  virtual QString Description() const = 0;
  virtual QString Category() const = 0;
  // Comma list; may hold "{blank}".
  virtual QString NameSpaces() const = 0;
  virtual bool ExcludedFromPage() const = 0;
  virtual std::shared_ptr<KeyedCollection<std::shared_ptr<AttributeDef>>> Attributes() const = 0;
};

}  // namespace sv
