#include "project/model/ProjectVariableValue.h"

namespace sv {

void ProjectVariableValue::setUseDefault(bool value) {
  if (!value || !mHasValue) return;
  mHasValue = false;
  mValue.clear();
  *mDirty = true;
}

void ProjectVariableValue::setValue(const QString& value) {
  if (mHasValue && mValue == value) return;
  mHasValue = true;
  mValue = value;
  *mDirty = true;
}

}  // namespace sv
