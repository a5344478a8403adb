#pragma once

#include <QString>
#include <memory>

#include "model/ModelTypes.h"

namespace sv {

class DDP;
class NamespaceDef;

// The source of the items of a definition, handed out by SVProject::GetNamespaceProvider.
class NamespaceProvider {
 public:
  virtual ~NamespaceProvider() = default;

  // Child items of parent (null for the top) for a definition under a filter string; null for
  // nothing.
  virtual std::shared_ptr<ItemCollection> GetItems(const std::shared_ptr<NamespaceDef>& def,
                                                   const std::shared_ptr<CodeItem>& parent,
                                                   const QString& filter) = 0;
  virtual std::shared_ptr<sv::DDP> DDP() const = 0;
  virtual std::shared_ptr<CodeItem> GetRootItem(const std::shared_ptr<NamespaceDef>& def,
                                                const QString& moniker) = 0;
  // The item of a qualified name; null when there is none.
  virtual std::shared_ptr<CodeItem> GetItem(const QString& qualifiedName) = 0;
  virtual QString GetRelevantContentFilter(const std::shared_ptr<CodeItem>& item) = 0;
};

}  // namespace sv
