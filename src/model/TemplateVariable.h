#pragma once

#include <QString>

namespace sv {

// A variable that a template declares. Type 0 or 1 is text, 2 a number, 4 a colour.
class TemplateVariable {
 public:
  virtual ~TemplateVariable() = default;

  virtual QString Name() const = 0;
  virtual long Type() const = 0;
  virtual QString Caption() const = 0;
  virtual QString Description() const = 0;
  virtual QString DefaultValue() const = 0;
};

}  // namespace sv
