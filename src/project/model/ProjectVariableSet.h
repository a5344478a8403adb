#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"
#include "model/ProjectVariables.h"

namespace sv {

class ProjectVariableValue;

// The project's template variable values, in the order they were added, keyed by name.
class ProjectVariableSet : public ProjectVariables {
 public:
  explicit ProjectVariableSet(std::shared_ptr<bool> dirty) : mDirty(std::move(dirty)) {}

  int Count() const override { return mVariables.Count(); }
  std::shared_ptr<ProjectVariable> Item(int index) const override;
  std::shared_ptr<ProjectVariable> Item(const QString& name) const override;
  std::shared_ptr<ProjectVariable> Add(const QString& name) override;
  // Drops a variable; false when there is none of that name.
  bool Remove(const QString& name);

 private:
  KeyedCollection<std::shared_ptr<ProjectVariableValue>> mVariables;
  std::shared_ptr<bool> mDirty;
};

}  // namespace sv
