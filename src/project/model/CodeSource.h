#pragma once

#include <QString>

namespace sv {

// Where a project's code model comes from: the provider that reads it ("doxygen"), the folder
// of its Doxygen XML (relative to the project file) and the root name of its qualified names.
struct CodeSource {
  QString provider;
  QString xml;
  QString root;

  bool IsEmpty() const { return provider.isEmpty(); }
  friend bool operator==(const CodeSource&, const CodeSource&) = default;
};

}  // namespace sv
