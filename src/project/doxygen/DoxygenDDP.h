#pragma once

#include <QString>
#include <memory>

#include "model/DDP.h"

namespace sv {

// The data-driven part of DoxygenProvider. An item resolves to the definition of its own kind
// in the set the tree passed (a class compound that C++ declares as a struct is a Struct,
// whatever definition listed it); a caption expression names the item resolved last with
// "[Name]", "[QualifiedName]" and "[Kind]".
class DoxygenDDP : public DDP {
 public:
  void SetParentContext(const std::shared_ptr<CodeItem>& parent) override {
    mParentContext = parent;
  }
  std::shared_ptr<NamespaceDef> ResolveNamespaceDef(
      const std::shared_ptr<NamespaceDef>& def, const std::shared_ptr<CodeItem>& item,
      const QString& typeMoniker, const std::shared_ptr<CodeItem>& parent) override;
  QString EvaluateCaption(const QString& expression) override;

  std::shared_ptr<CodeItem> ParentContext() const { return mParentContext.lock(); }

 private:
  std::weak_ptr<CodeItem> mParentContext;
  std::weak_ptr<CodeItem> mResolved;
};

}  // namespace sv
