#pragma once

#include <QString>
#include <vector>

#include "project/doxygen/DoxygenKinds.h"

namespace sv {

// A member of a compound as its file declares it. The implicit default constructor of a class
// that declares none is listed too, with declared false and no id.
struct DoxygenMember {
  QString id;             // Doxygen's refid; changes between Doxygen versions, so never a key
  QString name;           // "moveBy", "~Shape", "operator+"
  QString qualifiedName;  // "geometry~geometry~shapes~Shape~moveBy(const Point&)"
  QString type;           // "Length", "const Point &"
  QString argsString;     // "(Length dx, Length dy)", "() const override"
  QString signature;      // normalised argument types and qualifiers: "(Length,Length)"
  QString brief;
  QString initializer;  // "= 25" of an enum value or variable
  DoxygenMemberKind kind = DoxygenMemberKind::Other;
  DoxygenAccess access = DoxygenAccess::Public;
  bool isStatic = false;
  bool isConst = false;
  bool isVirtual = false;
  bool isPureVirtual = false;
  bool isExplicit = false;  // the C++ keyword on a constructor or conversion
  bool isConstructor = false;
  bool isDestructor = false;
  bool isDeclared = true;  // false only for the implicit default constructor
  bool isOverloaded = false;
  bool isStrong = false;              // enum class
  std::vector<DoxygenMember> values;  // an enum's values
};

}  // namespace sv
