#pragma once

#include <QString>

namespace sv {

// An object that names itself and dumps its own members for the error report, so that member
// names such as mHighlightCommentedItems reach it. DumpMembers is usually one call of
// DumpValues({{"mName", mName}, ...}).
class Dumpable {
 public:
  virtual ~Dumpable() = default;
  virtual QString ModuleName() const = 0;
  virtual QString DumpMembers() const = 0;
};

}  // namespace sv
