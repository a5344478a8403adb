#pragma once

#include <QHashFunctions>
#include <QString>

namespace sv {

// A tree's key index entry. Case-blind keys compare unit by unit after simple case folding, and
// hash the same folded units, so a lookup needs no lower-cased copy of the key.
struct NodeKey {
  QString text;
  bool ignoreCase = true;

  friend bool operator==(const NodeKey& a, const NodeKey& b) noexcept;
};

size_t qHash(const NodeKey& key, size_t seed = 0) noexcept;

}  // namespace sv
