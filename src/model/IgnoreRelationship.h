#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"

namespace sv {

class IgnoreRelationship {
 public:
  QString ModuleName() const { return mModuleName; }
  void setModuleName(const QString& value) { mModuleName = value; }
  QString ProcedureName() const { return mProcedureName; }
  void setProcedureName(const QString& value) { mProcedureName = value; }

 private:
  QString mModuleName;
  QString mProcedureName;
};
using IgnoreRelationships = KeyedCollection<std::shared_ptr<IgnoreRelationship>>;

}  // namespace sv
