#pragma once

#include <QString>
#include <memory>

#include "model/AdditionalFile.h"
#include "model/KeyedCollection.h"

namespace sv {

// Extra files copied with the output, keyed by file name.
class AdditionalFiles : public KeyedCollection<std::shared_ptr<AdditionalFile>> {
 public:
  void Add(std::shared_ptr<AdditionalFile> file) {
    const QString key = file->FileName();
    KeyedCollection::Add(std::move(file), key);
  }
  // True when a file of the same name is already listed.
  bool Exists(const QString& fileName) const { return Contains(fileName); }
};

}  // namespace sv
