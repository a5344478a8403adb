#pragma once

#include <QString>

namespace sv {

// The value a project gives to one template variable.
class ProjectVariable {
 public:
  virtual ~ProjectVariable() = default;

  virtual QString Name() const = 0;
  virtual bool HasValue() const = 0;
  virtual void setUseDefault(bool value) = 0;
  virtual QString Value() const = 0;
  virtual void setValue(const QString& value) = 0;
};

}  // namespace sv
