#pragma once

#include <QString>
#include <cstdint>
#include <string_view>

namespace sv {

// The kinds of Doxygen compound. Root is the project's global scope, which Doxygen has no
// compound for; Other covers the kinds that carry no code (files, dirs, pages, groups...).
enum class DoxygenCompoundKind : std::uint8_t {
  Root,
  Namespace,
  Class,
  Struct,
  Union,
  Interface,
  Protocol,
  Category,
  Exception,
  Concept,
  File,
  Other
};

enum class DoxygenMemberKind : std::uint8_t {
  Function,
  Variable,
  Typedef,
  Enum,
  EnumValue,
  Property,
  Event,
  Signal,
  Slot,
  Friend,
  Define,
  Other
};

enum class DoxygenAccess : std::uint8_t { None, Public, Protected, Private, Package };

DoxygenCompoundKind ParseCompoundKind(std::string_view kind);
DoxygenMemberKind ParseMemberKind(std::string_view kind);
DoxygenAccess ParseAccess(std::string_view prot);

// True for the compound kinds that are scopes of the code tree.
bool IsCodeScope(DoxygenCompoundKind kind);
// True for the compound kinds that C++ gives an implicit default constructor.
bool HasConstructors(DoxygenCompoundKind kind);
// True for the member kinds that take an argument list and may be overloaded.
bool IsCallable(DoxygenMemberKind kind);

// Doxygen's own word for a kind ("class", "function"...).
QString KindWord(DoxygenCompoundKind kind);
QString KindWord(DoxygenMemberKind kind);
// The code model's access word: "PUBLIC", "PROTECTED", "PRIVATE", "FRIEND"; empty for None.
QString AccessWord(DoxygenAccess access);

}  // namespace sv
