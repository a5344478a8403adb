#pragma once

#include <QString>
#include <memory>

#include "model/ProjectVariable.h"

namespace sv {

// The value a project gives to one template variable. A variable without a value uses the
// template's default. Changes mark the owning project dirty through the shared flag.
class ProjectVariableValue : public ProjectVariable {
 public:
  ProjectVariableValue(QString name, std::shared_ptr<bool> dirty)
      : mName(std::move(name)), mDirty(std::move(dirty)) {}

  QString Name() const override { return mName; }
  bool HasValue() const override { return mHasValue; }
  void setUseDefault(bool value) override;
  QString Value() const override { return mValue; }
  void setValue(const QString& value) override;

 private:
  QString mName;
  QString mValue;
  bool mHasValue = false;
  std::shared_ptr<bool> mDirty;
};

}  // namespace sv
