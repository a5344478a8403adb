#pragma once

#include <memory>

#include "model/CodeItem.h"

namespace sv {

// A source code project whose items can be written back to the source.
class VBProject : public CodeItem {
 public:
  virtual void setSelectiveLoad(bool value) = 0;
  virtual std::shared_ptr<ItemCollection> Components() const = 0;  // of VBComponent
  virtual void setLoadAllComponents(bool value) = 0;
};

}  // namespace sv
