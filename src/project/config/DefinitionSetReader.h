#pragma once

#include <QString>
#include <memory>

namespace sv {

class DefinitionSet;

// Reads one namespace definition set file (format in docs/formats.md). The first definition is
// the root; child definitions refer to definitions of the same file by key, so kinds may nest.
class DefinitionSetReader {
 public:
  // Raises FileNotFound for a missing file and BadFileFormat (file, line, column) for a malformed
  // one, an unknown child key among them.
  static std::shared_ptr<DefinitionSet> Read(const QString& path);
};

}  // namespace sv
