#include "project/model/ProjectVariableSet.h"

#include "project/model/ProjectVariableValue.h"

namespace sv {

std::shared_ptr<ProjectVariable> ProjectVariableSet::Item(int index) const {
  return mVariables.Item(index);
}

std::shared_ptr<ProjectVariable> ProjectVariableSet::Item(const QString& name) const {
  return mVariables.Find(name).value_or(nullptr);
}

std::shared_ptr<ProjectVariable> ProjectVariableSet::Add(const QString& name) {
  if (auto existing = mVariables.Find(name)) return *existing;
  auto variable = std::make_shared<ProjectVariableValue>(name, mDirty);
  mVariables.Add(variable, name);
  *mDirty = true;
  return variable;
}

bool ProjectVariableSet::Remove(const QString& name) {
  if (!mVariables.Contains(name)) return false;
  mVariables.Remove(name);
  *mDirty = true;
  return true;
}

}  // namespace sv
