#pragma once

#include "foundation/DumpVariant.h"

#include <exception>

namespace sv {

// Names a local variable for the error report of the enclosing trap. It costs nothing unless an
// exception unwinds through it: then it dumps the variable's value of that moment into the
// innermost trap frame. Declare it after the variable:  SV_TRAP_LOCAL(count);
class TrapLocal {
 public:
  template <class T>
  TrapLocal(const char* name, const T& value)
      : mName(name),
        mValue(&value),
        mRead([](const void* v) { return DumpVariant(*static_cast<const T*>(v)); }),
        mUncaught(std::uncaught_exceptions()) {}
  // The value must outlive the name: a temporary would be gone before the dump.
  template <class T>
  TrapLocal(const char* name, const T&& value) = delete;
  ~TrapLocal();
  TrapLocal(const TrapLocal&) = delete;
  TrapLocal& operator=(const TrapLocal&) = delete;

 private:
  const char* mName;
  const void* mValue;
  DumpVariant (*mRead)(const void*);
  int mUncaught;
};

}  // namespace sv

#define SV_TRAP_LOCAL(variable) const ::sv::TrapLocal svTrapLocal_##variable(#variable, variable)
