#include "project/core/DefinitionSet.h"

#include "project/core/Definition.h"

namespace sv {

DefinitionSet::DefinitionSet(QString name, QString caption, QString viewOptionFlags)
    : mName(std::move(name)),
      mCaption(std::move(caption)),
      mViewOptionFlags(std::move(viewOptionFlags)) {}

DefinitionSet::~DefinitionSet() {
  // Our own weak pointers have expired by now, so a definition without an owner is one we owned.
  for (const auto& def : mDefs) {
    auto ours = std::dynamic_pointer_cast<Definition>(def);
    if (ours && !ours->Owner()) ours->ClearChildren();
  }
}

std::shared_ptr<NamespaceDef> DefinitionSet::Item(const QString& key) const {
  return mDefs.Find(key).value_or(nullptr);
}

void DefinitionSet::Add(std::shared_ptr<NamespaceDef> def, const QString& key) {
  mDefs.Add(std::move(def), key);
}

std::shared_ptr<NamespaceDef> DefinitionSet::ItemByMoniker(const QString& moniker) const {
  for (const auto& def : mDefs)
    if (def->TypeMoniker().compare(moniker, Qt::CaseInsensitive) == 0) return def;
  return nullptr;
}

void DefinitionSet::Adopt(const std::shared_ptr<Definition>& def) {
  Add(def, def->Key());
  def->setOwner(shared_from_this());
}

}  // namespace sv
