#pragma once

#include "model/CodeItem.h"

namespace sv {

// A component (module, class, form) of a source code project. Its IncludeFlag decides whether it
// takes part in the documentation.
class VBComponent : public CodeItem {
 public:
  QString TypeName() const override { return QStringLiteral("Component"); }
};

}  // namespace sv
