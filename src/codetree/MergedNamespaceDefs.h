#pragma once

#include <QHash>
#include <QString>
#include <memory>

#include "model/KeyedCollection.h"
#include "model/NamespaceDefs.h"

namespace sv {

// The definitions a tree gathers when roots of several definition sets are loaded into it
// without clearing: keyed by Key, found by moniker in constant time.
class MergedNamespaceDefs : public NamespaceDefs {
 public:
  QString Name() const override { return {}; }
  QString Caption() const override { return {}; }
  QString ViewOptionFlags() const override { return {}; }
  std::shared_ptr<NamespaceDef> Item(int index) const override { return mDefs.Item(index); }
  // Null for a missing key.
  std::shared_ptr<NamespaceDef> Item(const QString& key) const override;
  // Raises DuplicateKey for a key already present.
  void Add(std::shared_ptr<NamespaceDef> def, const QString& key) override;
  int Count() const override { return mDefs.Count(); }
  // The first definition of that moniker, without regard to case; null when none.
  std::shared_ptr<NamespaceDef> ItemByMoniker(const QString& moniker) const override;

 private:
  KeyedCollection<std::shared_ptr<NamespaceDef>> mDefs;
  QHash<QString, std::shared_ptr<NamespaceDef>> mByMoniker;  // folded moniker -> first def
};

}  // namespace sv
