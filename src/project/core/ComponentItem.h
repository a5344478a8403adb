#pragma once

#include "model/VBComponent.h"
#include "project/core/ModelItemBase.h"

namespace sv {

// A component of a source code project. It always has IncludeFlag, false until set.
class ComponentItem : public ModelItemBase<VBComponent> {
 public:
  ComponentItem(QString qualifiedName, QString name)
      : ModelItemBase(QStringLiteral("Component"), std::move(qualifiedName), std::move(name)) {
    addIncludeFlag(false);
  }
};

}  // namespace sv
