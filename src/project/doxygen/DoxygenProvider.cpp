#include "project/doxygen/DoxygenProvider.h"

#include <QSet>
#include <algorithm>

#include "model/NamespaceDef.h"
#include "project/doxygen/DoxygenCompound.h"
#include "project/doxygen/DoxygenDDP.h"
#include "project/doxygen/DoxygenFilter.h"
#include "project/doxygen/DoxygenIndex.h"
#include "project/doxygen/DoxygenItem.h"

namespace sv {
namespace {

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The definition kind of a compound; empty for one the code tree does not show.
QString ScopeKind(DoxygenCompoundKind kind) {
  switch (kind) {
    case DoxygenCompoundKind::Root:
      return QStringLiteral("Project");
    case DoxygenCompoundKind::Namespace:
      return QStringLiteral("Namespace");
    case DoxygenCompoundKind::Class:
    case DoxygenCompoundKind::Exception:
    case DoxygenCompoundKind::Category:
      return QStringLiteral("Class");
    case DoxygenCompoundKind::Struct:
      return QStringLiteral("Struct");
    case DoxygenCompoundKind::Union:
      return QStringLiteral("Union");
    case DoxygenCompoundKind::Interface:
    case DoxygenCompoundKind::Protocol:
      return QStringLiteral("Interface");
    default:
      return {};
  }
}

// The definition kind of a member; empty for friends and macros, which the tree does not show.
QString MemberKind(const DoxygenMember& member) {
  switch (member.kind) {
    case DoxygenMemberKind::Function:
      return member.isConstructor ? QStringLiteral("Constructor") : QStringLiteral("Function");
    case DoxygenMemberKind::Slot:
      return QStringLiteral("Function");
    case DoxygenMemberKind::Signal:
    case DoxygenMemberKind::Event:
      return QStringLiteral("Event");
    case DoxygenMemberKind::Variable:
      return QStringLiteral("Variable");
    case DoxygenMemberKind::Typedef:
      return QStringLiteral("Typedef");
    case DoxygenMemberKind::Enum:
      return QStringLiteral("Enum");
    case DoxygenMemberKind::EnumValue:
      return QStringLiteral("EnumValue");
    case DoxygenMemberKind::Property:
      return QStringLiteral("Property");
    default:
      return {};
  }
}

bool SameKind(const QString& a, const QString& b) {
  return !a.isEmpty() && a.compare(b, Qt::CaseInsensitive) == 0;
}

bool IsScopeKind(const QString& kind) {
  for (const char* scope : {"Namespace", "Class", "Struct", "Union", "Interface"})
    if (kind.compare(QLatin1String(scope), Qt::CaseInsensitive) == 0) return true;
  return false;
}

// Keys of an item collection ignore case, which C++ names do not: a second name that differs
// only in case stays reachable by position.
void Append(ItemCollection& items, const std::shared_ptr<CodeItem>& item) {
  const QString key = item->QualifiedName().value_or(QString());
  items.Add(item, items.Contains(key) ? QString() : key);
}

// What a derived class sees of an inherited member: the narrower of the two accesses.
DoxygenAccess Narrower(DoxygenAccess member, DoxygenAccess base) {
  return std::max(member, base);
}

}  // namespace

DoxygenProvider::DoxygenProvider(std::shared_ptr<const DoxygenIndex> index,
                                 std::weak_ptr<ProjectModel> project)
    : mIndex(std::move(index)),
      mProject(std::move(project)),
      mDdp(std::make_shared<DoxygenDDP>()) {}

std::shared_ptr<DoxygenProvider> DoxygenProvider::Open(const QString& xmlFolder,
                                                       const QString& rootName,
                                                       std::weak_ptr<ProjectModel> project) {
  return std::make_shared<DoxygenProvider>(std::make_shared<DoxygenIndex>(xmlFolder, rootName),
                                           std::move(project));
}

DoxygenProvider::~DoxygenProvider() = default;

std::shared_ptr<DDP> DoxygenProvider::DDP() const {
  return mDdp;
}

std::shared_ptr<CodeItem> DoxygenProvider::remember(const std::shared_ptr<CodeItem>& item,
                                                    Place place) {
  mItems.insert(item->QualifiedName().value_or(QString()), item);
  mPlaces.insert(item.get(), place);
  return item;
}

DoxygenAccess DoxygenProvider::scopeAccess(int id) const {
  const DoxygenIndexCompound& compound = mIndex->Compound(id);
  if (compound.kind == DoxygenCompoundKind::Root || compound.kind == DoxygenCompoundKind::Namespace)
    return DoxygenAccess::None;
  // Only the enclosing class's file says how a nested class is reachable.
  const int parent = compound.parent;
  if (parent < 0) return DoxygenAccess::Public;
  const DoxygenCompoundKind parentKind = mIndex->Compound(parent).kind;
  if (parentKind == DoxygenCompoundKind::Root || parentKind == DoxygenCompoundKind::Namespace)
    return DoxygenAccess::Public;
  const DoxygenAccess access = mIndex->Details(parent).InnerAccess(compound.refid);
  return access == DoxygenAccess::None ? DoxygenAccess::Public : access;
}

std::shared_ptr<CodeItem> DoxygenProvider::scopeItem(int id) {
  const QString qualifiedName = mIndex->QualifiedName(id);
  if (const auto found = mItems.constFind(qualifiedName); found != mItems.constEnd()) return *found;
  const DoxygenIndexCompound& compound = mIndex->Compound(id);
  const QString kind = ScopeKind(compound.kind);
  if (kind.isEmpty()) return nullptr;
  const QString name =
      id == DoxygenIndex::kRoot ? mIndex->RootName() : ToQString(compound.localName);
  auto item = std::make_shared<DoxygenScopeItem>(mProject, kind, qualifiedName, name);
  const DoxygenAccess access = scopeAccess(id);
  if (access != DoxygenAccess::None) item->setAccess(AccessWord(access));
  if (id == DoxygenIndex::kRoot) item->addRootFlag(false);
  const auto project = mProject.lock();
  const bool excluded = project && project->NamespaceExclusions()->Contains(qualifiedName);
  item->addIncludeFlag(!excluded);
  item->addExcludeFlag(excluded);
  return remember(item, {id, nullptr});
}

std::shared_ptr<CodeItem> DoxygenProvider::memberItem(int scope, const DoxygenMember& member) {
  if (const auto found = mItems.constFind(member.qualifiedName); found != mItems.constEnd())
    return *found;
  const QString kind = MemberKind(member);
  if (kind.isEmpty()) return nullptr;
  auto item =
      std::make_shared<DoxygenMemberItem>(mProject, member.qualifiedName, member.name, kind);
  if (member.access != DoxygenAccess::None) item->setAccess(AccessWord(member.access));
  item->setOverloaded(member.isOverloaded);
  item->setIsExplicit(member.isConstructor && member.isDeclared);
  const auto project = mProject.lock();
  const bool excluded = project && project->NamespaceExclusions()->Contains(member.qualifiedName);
  item->addIncludeFlag(!excluded);
  item->addExcludeFlag(excluded);
  return remember(item, {scope, &member});
}

std::shared_ptr<ItemCollection> DoxygenProvider::GetItems(const std::shared_ptr<NamespaceDef>& def,
                                                          const std::shared_ptr<CodeItem>& parent,
                                                          const QString& filter) {
  if (!def) return nullptr;
  const QString kind = def->Key();
  auto items = std::make_shared<ItemCollection>();
  if (!parent) {
    if (SameKind(kind, QStringLiteral("Project"))) Append(*items, scopeItem(DoxygenIndex::kRoot));
    return items;
  }
  const auto place = mPlaces.constFind(parent.get());
  if (place == mPlaces.constEnd()) return nullptr;
  const DoxygenFilter words(filter);
  if (place->member) {
    if (!SameKind(kind, QStringLiteral("EnumValue"))) return items;
    for (const DoxygenMember& value : place->member->values)
      if (words.Shows(value.access)) Append(*items, memberItem(place->compound, value));
    return items;
  }
  if (IsScopeKind(kind)) {
    addScopes(*items, place->compound, kind, words);
    return items;
  }
  addMembers(*items, place->compound, kind, words);
  if (words.IncludeInherited()) addInherited(*items, place->compound, kind, words);
  return items;
}

void DoxygenProvider::addScopes(ItemCollection& items, int parent, const QString& kind,
                                const DoxygenFilter& filter) {
  for (const std::int32_t child : mIndex->Children(parent)) {
    if (!SameKind(ScopeKind(mIndex->Compound(child).kind), kind)) continue;
    if (!filter.Shows(scopeAccess(child))) continue;
    Append(items, scopeItem(child));
  }
}

void DoxygenProvider::addMembers(ItemCollection& items, int parent, const QString& kind,
                                 const DoxygenFilter& filter) {
  for (const DoxygenMember& member : mIndex->Details(parent).Members()) {
    if (!SameKind(MemberKind(member), kind) || !filter.Shows(member.access)) continue;
    Append(items, memberItem(parent, member));
  }
}

void DoxygenProvider::addInherited(ItemCollection& items, int parent, const QString& kind,
                                   const DoxygenFilter& filter) {
  // A member of the class hides every inherited one of its name; constructors are not
  // inherited and private members are out of reach.
  const DoxygenCompound& details = mIndex->Details(parent);
  QSet<QString> hidden;
  for (const DoxygenMember& member : details.Members()) hidden.insert(member.name);
  for (const DoxygenBase& base : details.Bases()) {
    const int id = compoundOfRefid(base.refid);
    if (id < 0) continue;
    for (const DoxygenMember& member : mIndex->Details(id).Members()) {
      if (member.isConstructor || member.isDestructor || hidden.contains(member.name)) continue;
      if (member.access == DoxygenAccess::Private || !SameKind(MemberKind(member), kind)) continue;
      if (!filter.Shows(Narrower(member.access, base.access))) continue;
      Append(items, memberItem(id, member));
    }
  }
}

int DoxygenProvider::compoundOfRefid(const QString& refid) {
  if (refid.isEmpty()) return -1;
  if (mByRefid.empty())
    for (int id = 1; id < mIndex->Count(); ++id)
      if (!mIndex->Compound(id).refid.empty()) mByRefid.emplace(mIndex->Compound(id).refid, id);
  const QByteArray key = refid.toUtf8();
  const auto found = mByRefid.find(std::string_view(key.constData(), key.size()));
  return found == mByRefid.end() ? -1 : found->second;
}

std::shared_ptr<CodeItem> DoxygenProvider::GetRootItem(const std::shared_ptr<NamespaceDef>& def,
                                                       const QString& moniker) {
  (void)def;
  if (moniker.isEmpty() || moniker == mIndex->RootName()) return scopeItem(DoxygenIndex::kRoot);
  return GetItem(moniker);
}

std::shared_ptr<CodeItem> DoxygenProvider::GetItem(const QString& qualifiedName) {
  if (const auto found = mItems.constFind(qualifiedName); found != mItems.constEnd()) return *found;
  QString rest;
  const int scope = mIndex->FindScopeOf(qualifiedName, &rest);
  if (scope < 0) return nullptr;
  if (rest.isEmpty()) return scopeItem(scope);
  const DoxygenMember* member = mIndex->Details(scope).FindMember(qualifiedName);
  return member ? memberItem(scope, *member) : nullptr;
}

QString DoxygenProvider::GetRelevantContentFilter(const std::shared_ptr<CodeItem>& item) {
  (void)item;
  return {};
}

}  // namespace sv
