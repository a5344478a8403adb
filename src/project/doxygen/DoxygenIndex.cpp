#include "project/doxygen/DoxygenIndex.h"

#include <QDir>
#include <algorithm>

#include "model/Error.h"
#include "project/doxygen/DoxygenCompound.h"
#include "project/doxygen/DoxygenNames.h"

namespace sv {
namespace {

// index.xml spends about this many bytes per listed member; reserving by it saves regrowth.
constexpr qint64 kIndexBytesPerMember = 128;
constexpr qint64 kIndexBytesPerCompound = 2048;

// The value of a named attribute; empty when the node lacks it.
std::string_view Attribute(pugi::xml_node node, std::string_view name) {
  for (pugi::xml_attribute a = node.first_attribute(); a; a = a.next_attribute())
    if (View(a.name()) == name) return View(a.value());
  return {};
}

std::string_view ChildText(pugi::xml_node node) {
  return View(node.first_child().value());
}

}  // namespace

DoxygenIndex::DoxygenIndex(const QString& xmlFolder, const QString& rootName)
    : mFolder(xmlFolder),
      mRootName(rootName),
      mFile(QDir(xmlFolder).filePath(QStringLiteral("index.xml")), "doxygenindex") {
  ReadCompounds();
  mFile.DropTree();
  PlaceInScopes();
  BuildChildTable();
  mDetails.resize(mCompounds.size());
}

DoxygenIndex::~DoxygenIndex() = default;

void DoxygenIndex::ReadCompounds() {
  const qint64 size = mFile.Size();
  mCompounds.reserve(static_cast<std::size_t>(size / kIndexBytesPerCompound + 16));
  mMembers.reserve(static_cast<std::size_t>(size / kIndexBytesPerMember + 16));
  DoxygenIndexCompound root;
  root.kind = DoxygenCompoundKind::Root;
  mCompounds.push_back(root);

  for (pugi::xml_node node = mFile.Root().first_child(); node; node = node.next_sibling()) {
    if (View(node.name()) != "compound") continue;
    DoxygenIndexCompound compound;
    compound.refid = Attribute(node, "refid");
    compound.kind = ParseCompoundKind(Attribute(node, "kind"));
    compound.firstMember = static_cast<std::uint32_t>(mMembers.size());
    if (compound.refid.empty()) mFile.Fail(node, QStringLiteral("A compound has no refid"));
    for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling()) {
      const std::string_view element = View(child.name());
      if (element == "name") {
        compound.name = ChildText(child);
        continue;
      }
      if (element != "member") continue;
      pugi::xml_attribute refid = child.first_attribute();
      pugi::xml_attribute kind = refid.next_attribute();
      // Doxygen writes refid then kind; anything else is looked up by name.
      if (View(refid.name()) != "refid" || View(kind.name()) != "kind") {
        refid = child.attribute("refid");
        kind = child.attribute("kind");
      }
      mMembers.push_back({View(refid.value()), ChildText(child.first_child()),
                          ParseMemberKind(View(kind.value()))});
    }
    compound.memberCount = static_cast<std::uint32_t>(mMembers.size()) - compound.firstMember;
    compound.localName = DoxygenNames::LocalName(compound.name);
    mCompounds.push_back(compound);
  }
}

void DoxygenIndex::PlaceInScopes() {
  const std::size_t listed = mCompounds.size();
  mByName.reserve(listed);
  for (std::size_t id = 1; id < listed; ++id) {
    const DoxygenIndexCompound& compound = mCompounds[id];
    if (IsCodeScope(compound.kind)) mByName.emplace(compound.name, static_cast<std::int32_t>(id));
  }
  for (std::size_t id = 1; id < listed; ++id) {
    DoxygenIndexCompound& compound = mCompounds[id];
    if (!IsCodeScope(compound.kind)) {
      mOthers.push_back(static_cast<std::int32_t>(id));
      compound.holdsGlobals = compound.kind == DoxygenCompoundKind::File && HoldsGlobals(compound);
      continue;
    }
    const std::string_view scope = DoxygenNames::ScopeName(compound.name);
    const int parent = ScopeFor(scope);
    mCompounds[id].parent = parent;  // ScopeFor may have moved the vector
  }
}

bool DoxygenIndex::HoldsGlobals(const DoxygenIndexCompound& file) const {
  // A member's refid starts with the refid of the scope that declares it.
  for (const DoxygenIndexMember& member : Members(file)) {
    const std::string_view refid = member.refid;
    if (refid.size() > file.refid.size() + 2 && refid.starts_with(file.refid) &&
        refid.substr(file.refid.size(), 2) == "_1")
      return true;
  }
  return false;
}

int DoxygenIndex::ScopeFor(std::string_view scopeName) {
  if (scopeName.empty()) return kRoot;
  if (const auto found = mByName.find(scopeName); found != mByName.end()) return found->second;
  const int parent = ScopeFor(DoxygenNames::ScopeName(scopeName));
  const auto id = static_cast<std::int32_t>(mCompounds.size());
  DoxygenIndexCompound scope;
  scope.name = scopeName;
  scope.localName = DoxygenNames::LocalName(scopeName);
  scope.kind = DoxygenCompoundKind::Namespace;
  scope.parent = parent;
  mCompounds.push_back(scope);
  mByName.emplace(scopeName, id);
  return id;
}

void DoxygenIndex::BuildChildTable() {
  // Counting sort by parent keeps each scope's children in index order in one array.
  std::vector<std::uint32_t> next(mCompounds.size() + 1, 0);
  for (const DoxygenIndexCompound& compound : mCompounds)
    if (compound.parent >= 0) ++mCompounds[static_cast<std::size_t>(compound.parent)].childCount;
  std::uint32_t offset = 0;
  for (DoxygenIndexCompound& compound : mCompounds) {
    compound.firstChild = offset;
    offset += compound.childCount;
  }
  for (std::size_t id = 0; id < mCompounds.size(); ++id) next[id] = mCompounds[id].firstChild;
  mChildTable.resize(offset);
  for (std::size_t id = 0; id < mCompounds.size(); ++id) {
    const std::int32_t parent = mCompounds[id].parent;
    if (parent < 0) continue;
    mChildTable[next[static_cast<std::size_t>(parent)]++] = static_cast<std::int32_t>(id);
  }
}

std::span<const std::int32_t> DoxygenIndex::Children(int id) const {
  const DoxygenIndexCompound& compound = Compound(id);
  return std::span(mChildTable).subspan(compound.firstChild, compound.childCount);
}

std::span<const DoxygenIndexMember> DoxygenIndex::Members(int id) const {
  return Members(Compound(id));
}

std::span<const DoxygenIndexMember> DoxygenIndex::Members(
    const DoxygenIndexCompound& compound) const {
  return std::span(mMembers).subspan(compound.firstMember, compound.memberCount);
}

int DoxygenIndex::FindByName(std::string_view name) const {
  const auto found = mByName.find(name);
  return found == mByName.end() ? -1 : found->second;
}

QString DoxygenIndex::QualifiedName(int id) const {
  if (id == kRoot) return mRootName;
  const DoxygenIndexCompound& compound = Compound(id);
  if (compound.parent < 0) return {};
  return QualifiedName(compound.parent) + QLatin1Char('~') +
         QString::fromUtf8(compound.localName.data(),
                           static_cast<qsizetype>(compound.localName.size()));
}

int DoxygenIndex::ChildNamed(int scope, std::string_view localName) const {
  // A child's Doxygen name is its scope's, "::" and its own; the hash answers in constant time.
  std::string name;
  if (scope != kRoot) {
    name.append(Compound(scope).name);
    name.append("::");
  }
  name.append(localName);
  const int child = FindByName(name);
  return child >= 0 && Compound(child).parent == scope ? child : -1;
}

int DoxygenIndex::FindScopeOf(const QString& qualifiedName, QString* rest) const {
  if (!qualifiedName.startsWith(mRootName)) return -1;
  const QByteArray utf8 = qualifiedName.toUtf8();
  std::string_view left = std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size()))
                              .substr(static_cast<std::size_t>(mRootName.toUtf8().size()));
  if (!left.empty() && left.front() != '~') return -1;
  // Compound names never hold "~", so each "~" up to the first name that is no compound
  // separates scopes; what is left names a member, which may ("~Shape()") hold more.
  int scope = kRoot;
  while (!left.empty()) {
    left.remove_prefix(1);
    const std::size_t end = left.find('~');
    const int child = ChildNamed(scope, left.substr(0, end));
    if (child < 0) break;
    scope = child;
    left = end == std::string_view::npos ? std::string_view() : left.substr(end);
  }
  if (rest) *rest = QString::fromUtf8(left.data(), static_cast<qsizetype>(left.size()));
  return scope;
}

int DoxygenIndex::FindQualified(const QString& qualifiedName) const {
  QString rest;
  const int scope = FindScopeOf(qualifiedName, &rest);
  return rest.isEmpty() ? scope : -1;
}

const DoxygenCompound& DoxygenIndex::Details(int id) const {
  std::unique_ptr<DoxygenCompound>& details = mDetails[static_cast<std::size_t>(id)];
  if (!details) details = std::make_unique<DoxygenCompound>(*this, id);
  return *details;
}

bool DoxygenIndex::IsLoaded(int id) const {
  return mDetails[static_cast<std::size_t>(id)] != nullptr;
}

QString DoxygenIndex::FileOf(std::string_view refid) const {
  // A refid names a file in our folder; one that could reach outside it is refused.
  const bool safe = !refid.empty() && std::all_of(refid.begin(), refid.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-';
  });
  const QString name = QString::fromUtf8(refid.data(), static_cast<qsizetype>(refid.size()));
  if (!safe)
    Raise(ErrorNumber::BadFileFormat,
          QStringLiteral("%1: the refid \"%2\" is not a file name").arg(mFile.Path(), name));
  return QDir(mFolder).filePath(name + QStringLiteral(".xml"));
}

void DoxygenIndex::CountRead(qint64 bytes) const {
  ++mFilesRead;
  mBytesRead += bytes;
}

}  // namespace sv
