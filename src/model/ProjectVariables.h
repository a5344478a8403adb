#pragma once

#include <QString>
#include <memory>

#include "model/ItemRange.h"
#include "model/ProjectVariable.h"

namespace sv {

// The project's variable values, by name.
class ProjectVariables {
 public:
  virtual ~ProjectVariables() = default;

  virtual int Count() const = 0;
  virtual std::shared_ptr<ProjectVariable> Item(int index) const = 0;
  // The variable of a name; null when the project has none of that name.
  virtual std::shared_ptr<ProjectVariable> Item(const QString& name) const = 0;
  // The variable of a name, created without a value when missing.
  virtual std::shared_ptr<ProjectVariable> Add(const QString& name) = 0;

  ItemIterator<ProjectVariables, std::shared_ptr<ProjectVariable>> begin() const {
    return {this, 1};
  }
  ItemIterator<ProjectVariables, std::shared_ptr<ProjectVariable>> end() const {
    return {this, Count() + 1};
  }
};

}  // namespace sv
