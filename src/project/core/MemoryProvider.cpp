#include "project/core/MemoryProvider.h"

#include "model/CodeItem.h"
#include "model/NamespaceDef.h"
#include "project/core/MemoryDDP.h"

namespace sv {

namespace {
QString qualifiedNameOf(const CodeItem& item) {
  return item.QualifiedName().value_or(QString());
}
}  // namespace

MemoryProvider::MemoryProvider() : mDdp(std::make_shared<MemoryDDP>()) {}

MemoryProvider::~MemoryProvider() = default;

MemoryProvider::ChildKey MemoryProvider::childKey(const std::shared_ptr<CodeItem>& parent,
                                                  const NamespaceDef& def) {
  return {parent.get(), def.Key().toLower()};
}

void MemoryProvider::AddRoot(const std::shared_ptr<NamespaceDef>& def,
                             const std::shared_ptr<CodeItem>& item, const QString& moniker) {
  mRoots.Add(item, moniker.isEmpty() ? qualifiedNameOf(*item) : moniker);
  Add(def, item, nullptr);
}

void MemoryProvider::Add(const std::shared_ptr<NamespaceDef>& def,
                         const std::shared_ptr<CodeItem>& item,
                         const std::shared_ptr<CodeItem>& parent) {
  const QString name = qualifiedNameOf(*item);
  const bool known = mItems.contains(name);
  if (!known) mItems.insert(name, item);
  ItemCollection& children = mChildren[childKey(parent, *def)];
  // A second child of one name stays reachable by index only; only a known name can be one.
  children.Add(item, known && children.Contains(name) ? QString() : name);
}

void MemoryProvider::setRelevantContentFilter(const QString& qualifiedName, const QString& filter) {
  mContentFilters.insert(qualifiedName, filter);
}

std::shared_ptr<ItemCollection> MemoryProvider::GetItems(const std::shared_ptr<NamespaceDef>& def,
                                                         const std::shared_ptr<CodeItem>& parent,
                                                         const QString& filter) {
  mLastFilter = filter;
  ++mGetItemsCalls;
  const ItemCollection* children = Children(def, parent);
  return children ? std::make_shared<ItemCollection>(*children) : nullptr;
}

const ItemCollection* MemoryProvider::Children(const std::shared_ptr<NamespaceDef>& def,
                                               const std::shared_ptr<CodeItem>& parent) const {
  auto found = mChildren.constFind(childKey(parent, *def));
  return found == mChildren.constEnd() ? nullptr : &*found;
}

std::shared_ptr<DDP> MemoryProvider::DDP() const {
  return mDdp;
}

std::shared_ptr<CodeItem> MemoryProvider::GetRootItem(const std::shared_ptr<NamespaceDef>& def,
                                                      const QString& moniker) {
  (void)def;
  if (moniker.isEmpty()) return mRoots.IsEmpty() ? nullptr : mRoots.Item(1);
  return mRoots.Find(moniker).value_or(nullptr);
}

std::shared_ptr<CodeItem> MemoryProvider::GetItem(const QString& qualifiedName) {
  return mItems.value(qualifiedName);
}

QString MemoryProvider::GetRelevantContentFilter(const std::shared_ptr<CodeItem>& item) {
  if (!item) return {};
  return mContentFilters.value(qualifiedNameOf(*item));
}

}  // namespace sv
