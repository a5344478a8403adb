#pragma once

#include <QHash>
#include <QString>
#include <memory>
#include <utility>

#include "model/NamespaceProvider.h"

namespace sv {

class MemoryDDP;

// A provider over items held in memory. Each item is registered under its parent (null for the
// top) and a definition; GetItems answers the parent's children of that definition in the
// order they were added. Adding, GetItem and GetRootItem are constant time, GetItems is linear
// in the children, so a model of a few hundred thousand items stays cheap. Qualified names
// compare exactly; an item may hang under two parents, and GetItem then answers the first.
class MemoryProvider : public NamespaceProvider {
 public:
  MemoryProvider();
  ~MemoryProvider() override;

  // Adds a top item that GetRootItem finds by moniker (its qualified name when none is given).
  void AddRoot(const std::shared_ptr<NamespaceDef>& def, const std::shared_ptr<CodeItem>& item,
               const QString& moniker = {});
  // Adds an item as one of parent's children of def; a null parent means the top.
  void Add(const std::shared_ptr<NamespaceDef>& def, const std::shared_ptr<CodeItem>& item,
           const std::shared_ptr<CodeItem>& parent);
  void setRelevantContentFilter(const QString& qualifiedName, const QString& filter);

  // The parent's children of def; null when it has none. The filter is recorded, not applied.
  std::shared_ptr<ItemCollection> GetItems(const std::shared_ptr<NamespaceDef>& def,
                                           const std::shared_ptr<CodeItem>& parent,
                                           const QString& filter) override;
  std::shared_ptr<sv::DDP> DDP() const override;
  // The root of a moniker without regard to case; an empty moniker answers the first root.
  std::shared_ptr<CodeItem> GetRootItem(const std::shared_ptr<NamespaceDef>& def,
                                        const QString& moniker) override;
  std::shared_ptr<CodeItem> GetItem(const QString& qualifiedName) override;
  QString GetRelevantContentFilter(const std::shared_ptr<CodeItem>& item) override;

  // The parent's children of def without counting a call; null when it has none.
  const ItemCollection* Children(const std::shared_ptr<NamespaceDef>& def,
                                 const std::shared_ptr<CodeItem>& parent) const;
  std::shared_ptr<MemoryDDP> Ddp() const { return mDdp; }
  // Distinct qualified names held.
  int ItemCount() const { return static_cast<int>(mItems.size()); }
  // What GetItems was asked, so that tests can see the filter a tree composed and whether it
  // loaded lazily.
  QString LastFilter() const { return mLastFilter; }
  int GetItemsCalls() const { return mGetItemsCalls; }

 private:
  using ChildKey = std::pair<const CodeItem*, QString>;  // parent, folded definition key

  static ChildKey childKey(const std::shared_ptr<CodeItem>& parent, const NamespaceDef& def);

  QHash<ChildKey, ItemCollection> mChildren;
  QHash<QString, std::shared_ptr<CodeItem>> mItems;
  ItemCollection mRoots;  // keyed by moniker
  QHash<QString, QString> mContentFilters;
  std::shared_ptr<MemoryDDP> mDdp;
  QString mLastFilter;
  int mGetItemsCalls = 0;
};

}  // namespace sv
