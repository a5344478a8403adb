#pragma once

#include <QString>

namespace sv {

// A code example as the scrap-rendering provider takes it.
class Example {
 public:
  virtual ~Example() = default;

  virtual void setDescription(const QString& value) = 0;
  virtual void setSource(const QString& value) = 0;
  virtual QString Language() const = 0;
  virtual void setLanguage(const QString& value) = 0;
  virtual void setTitle(const QString& value) = 0;
};

}  // namespace sv
