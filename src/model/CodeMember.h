#pragma once

#include "model/CodeItem.h"

namespace sv {

// A member of a class or module: anything that carries Access as a member of its container.
class CodeMember : public CodeItem {
 public:
  virtual bool Overloaded() const = 0;
  virtual bool IsExplicit() const = 0;
  virtual bool HasOverloadBlocks() const = 0;
};

}  // namespace sv
