#pragma once

#include <QHash>
#include <QString>
#include <memory>
#include <string_view>
#include <unordered_map>

#include "model/NamespaceProvider.h"
#include "project/doxygen/DoxygenKinds.h"

namespace sv {

class DoxygenDDP;
class DoxygenFilter;
class DoxygenIndex;
class ProjectModel;
struct DoxygenMember;

// The code model of a Doxygen XML folder as a namespace provider. The index is read when the
// provider is made; a compound's own file is read the first time the tree asks for its members,
// so opening a large code base and showing its top level cost only the index. Items are made
// when first asked for and kept, so a qualified name always answers the same object. Their
// comments live in the project's store (see DoxygenItem).
//
// GetItems answers the children of one definition kind (the definition's Key: "Namespace",
// "Class", "Struct", "Union", "Interface", "Enum", "EnumValue", "Typedef", "Constructor",
// "Function", "Variable", "Property", "Event") in the order of the index and of the
// declarations. Its filter may restrict access ("scope=public+protected") and add what a class
// inherits ("IncludeInherited=True").
class DoxygenProvider : public NamespaceProvider {
 public:
  DoxygenProvider(std::shared_ptr<const DoxygenIndex> index,
                  std::weak_ptr<ProjectModel> project = {});
  // Reads <xmlFolder>/index.xml; throws sv::Error naming the file when it cannot.
  static std::shared_ptr<DoxygenProvider> Open(const QString& xmlFolder, const QString& rootName,
                                               std::weak_ptr<ProjectModel> project = {});
  ~DoxygenProvider() override;

  std::shared_ptr<ItemCollection> GetItems(const std::shared_ptr<NamespaceDef>& def,
                                           const std::shared_ptr<CodeItem>& parent,
                                           const QString& filter) override;
  std::shared_ptr<sv::DDP> DDP() const override;
  // The project item for an empty moniker or the root name; else the item the moniker names
  // as a qualified name.
  std::shared_ptr<CodeItem> GetRootItem(const std::shared_ptr<NamespaceDef>& def,
                                        const QString& moniker) override;
  // Finds the scope through the index and the member in its compound; never scans.
  std::shared_ptr<CodeItem> GetItem(const QString& qualifiedName) override;
  QString GetRelevantContentFilter(const std::shared_ptr<CodeItem>& item) override;

  const DoxygenIndex& Index() const { return *mIndex; }
  // Items made so far.
  int ItemCount() const { return static_cast<int>(mItems.size()); }

 private:
  // Where an item comes from: a compound, or a member of one.
  struct Place {
    int compound = -1;
    const DoxygenMember* member = nullptr;
  };

  std::shared_ptr<CodeItem> scopeItem(int id);
  std::shared_ptr<CodeItem> memberItem(int scope, const DoxygenMember& member);
  std::shared_ptr<CodeItem> remember(const std::shared_ptr<CodeItem>& item, Place place);
  DoxygenAccess scopeAccess(int id) const;
  void addScopes(ItemCollection& items, int parent, const QString& kind,
                 const DoxygenFilter& filter);
  void addMembers(ItemCollection& items, int parent, const QString& kind,
                  const DoxygenFilter& filter);
  void addInherited(ItemCollection& items, int parent, const QString& kind,
                    const DoxygenFilter& filter);
  int compoundOfRefid(const QString& refid);

  std::shared_ptr<const DoxygenIndex> mIndex;
  std::weak_ptr<ProjectModel> mProject;
  std::shared_ptr<DoxygenDDP> mDdp;
  QHash<QString, std::shared_ptr<CodeItem>> mItems;
  QHash<const CodeItem*, Place> mPlaces;
  std::unordered_map<std::string_view, int>
      mByRefid;  // made on first use: only inheritance needs it
};

}  // namespace sv
