#pragma once

#include <QString>
#include <memory>

#include "model/ParserAttribute.h"

namespace sv {

// Parses text of the form name="value" ... into attributes.
class StringBuilder {
 public:
  virtual ~StringBuilder() = default;

  virtual void setCaseInsensitive(bool value) = 0;
  virtual void Parse(const QString& text) = 0;
  // The attribute of a name; null when the text has none.
  virtual std::shared_ptr<ParserAttribute> Item(const QString& name) const = 0;
};

}  // namespace sv
