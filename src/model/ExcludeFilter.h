#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"

namespace sv {

class ExcludeFilter {
 public:
  QString Pattern() const { return mPattern; }
  void setPattern(const QString& value) { mPattern = value; }

 private:
  QString mPattern;
};
using ExcludeFilters = KeyedCollection<std::shared_ptr<ExcludeFilter>>;

}  // namespace sv
