#pragma once

#include "foundation/Dumpable.h"

namespace sv {

// The reporting identity of code without an object (free functions, helper modules): a name
// and no members.
class NamedModule : public Dumpable {
 public:
  explicit NamedModule(QString name) : mName(std::move(name)) {}
  QString ModuleName() const override { return mName; }
  QString DumpMembers() const override { return {}; }

 private:
  QString mName;
};

}  // namespace sv
