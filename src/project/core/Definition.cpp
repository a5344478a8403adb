#include "project/core/Definition.h"

#include "project/core/DefinitionSet.h"

namespace sv {

Definition::Definition(QString key)
    : mKey(std::move(key)), mChildDefs(std::make_shared<DefinitionSet>()) {}

std::shared_ptr<NamespaceDefs> Definition::ChildDefs() const {
  return mChildDefs;
}

void Definition::AddChild(const std::shared_ptr<NamespaceDef>& child) {
  mChildDefs->Add(child, child->Key());
}

void Definition::ClearChildren() {
  mChildDefs->Clear();
}

}  // namespace sv
