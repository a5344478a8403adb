#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"

namespace sv {

class TOCNodeDef;

// A named table of contents layout.
class TOCDefinition {
 public:
  virtual ~TOCDefinition() = default;

  virtual QString Name() const = 0;
  virtual std::shared_ptr<KeyedCollection<std::shared_ptr<TOCNodeDef>>> NodeDefs() const = 0;
};

}  // namespace sv
