#pragma once

#include <QString>

namespace sv {

// One attribute that a meta element may carry.
class AttributeDef {
 public:
  virtual ~AttributeDef() = default;

  virtual QString Name() const = 0;
  virtual QString Description() const = 0;
  virtual QString Type() const = 0;
  virtual QString ListType() const = 0;
  // Comma list.
  virtual QString Values() const = 0;
  virtual QString DefaultValue() const = 0;
  virtual bool Required() const = 0;
};

}  // namespace sv
