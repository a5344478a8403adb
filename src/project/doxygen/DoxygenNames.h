#pragma once

#include <QString>
#include <string_view>

namespace sv {

// Text rules for Doxygen's C++ names and signatures. Scope separators inside template
// arguments or parentheses ("QHash< K, std::less< K > >::iterator") do not split a name.
namespace DoxygenNames {

// Position of the last top-level "::" in a scoped name, or npos.
std::size_t LastScopeSeparator(std::string_view name);
// The name without its enclosing scopes: "geometry::shapes::Circle" gives "Circle".
std::string_view LocalName(std::string_view name);
// The enclosing scope: "geometry::shapes::Circle" gives "geometry::shapes"; empty at top level.
std::string_view ScopeName(std::string_view name);
// A class name without its template arguments, as its constructors are named: "QList< T >"
// gives "QList".
std::string_view WithoutTemplateArguments(std::string_view name);

// A type with spaces kept only between two identifier characters: "const QList< int > &"
// gives "const QList<int>&".
QString NormalisedType(std::string_view type);

// The qualifiers of a function that take part in overloading ("const", "volatile", "&",
// "&&"), read from the text after the argument list; "() const noexcept override" gives " const".
QString OverloadQualifiers(std::string_view argsString);

}  // namespace DoxygenNames
}  // namespace sv
