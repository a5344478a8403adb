#pragma once

#include <QString>
#include <memory>

#include "model/ElementDef.h"
#include "model/KeyedCollection.h"

namespace sv {

class NamespaceNames;

// Reads the meta element definition file (format in docs/formats.md).
class ElementDefinitionReader {
 public:
  using ElementCollection = KeyedCollection<std::shared_ptr<ElementDef>>;

  // kinds are the names the elements' namespaces may use, besides "{blank}". Raises FileNotFound
  // for a missing file and BadFileFormat (file, line, column) for a malformed one.
  static std::shared_ptr<ElementCollection> Read(const QString& path, const NamespaceNames& kinds);
};

}  // namespace sv
