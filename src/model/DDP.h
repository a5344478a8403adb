#pragma once

#include <QString>
#include <memory>

#include "model/ModelTypes.h"

namespace sv {

class NamespaceDef;

// The data-driven part of a namespace provider.
class DDP {
 public:
  virtual ~DDP() = default;

  // Told the parent object when the parent node is a top node.
  virtual void SetParentContext(const std::shared_ptr<CodeItem>& parent) = 0;
  // The definition that really applies to an item.
  virtual std::shared_ptr<NamespaceDef> ResolveNamespaceDef(
      const std::shared_ptr<NamespaceDef>& def, const std::shared_ptr<CodeItem>& item,
      const QString& typeMoniker, const std::shared_ptr<CodeItem>& parent) = 0;
  virtual QString EvaluateCaption(const QString& expression) = 0;
};

}  // namespace sv
