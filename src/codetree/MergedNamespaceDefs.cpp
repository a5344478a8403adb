#include "codetree/MergedNamespaceDefs.h"

#include "model/NamespaceDef.h"

namespace sv {

std::shared_ptr<NamespaceDef> MergedNamespaceDefs::Item(const QString& key) const {
  return mDefs.Find(key).value_or(nullptr);
}

void MergedNamespaceDefs::Add(std::shared_ptr<NamespaceDef> def, const QString& key) {
  const QString moniker = def ? def->TypeMoniker().toLower() : QString();
  mDefs.Add(def, key);
  if (def && !mByMoniker.contains(moniker)) mByMoniker.insert(moniker, std::move(def));
}

std::shared_ptr<NamespaceDef> MergedNamespaceDefs::ItemByMoniker(const QString& moniker) const {
  return mByMoniker.value(moniker.toLower());
}

}  // namespace sv
