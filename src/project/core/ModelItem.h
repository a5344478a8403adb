#pragma once

#include "model/CodeItem.h"
#include "project/core/ModelItemBase.h"

namespace sv {

// A plain item (namespace, class, enumeration, ...) whose TypeName is what it was given.
class ModelItem : public ModelItemBase<CodeItem> {
 public:
  ModelItem(QString typeName, QString qualifiedName, QString name)
      : ModelItemBase(std::move(typeName), std::move(qualifiedName), std::move(name)) {}
};

}  // namespace sv
