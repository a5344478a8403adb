#pragma once

#include <QString>
#include <memory>

namespace sv {

class NamespaceNames;
class TagDefinitionSet;

// Reads the tag definition file (format in docs/formats.md).
class TagDefinitionReader {
 public:
  // kinds are the names the tags' namespaces may use. Raises FileNotFound for a missing file and
  // BadFileFormat (file, line, column) for a malformed one.
  static std::shared_ptr<TagDefinitionSet> Read(const QString& path, NamespaceNames kinds);
};

}  // namespace sv
