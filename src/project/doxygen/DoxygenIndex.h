#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "project/doxygen/DoxygenKinds.h"
#include "project/doxygen/DoxygenXmlFile.h"

namespace sv {

class DoxygenCompound;

// A member as index.xml lists it. The views point into the index file's buffer.
struct DoxygenIndexMember {
  std::string_view refid;
  std::string_view name;
  DoxygenMemberKind kind = DoxygenMemberKind::Other;
};

// A compound as index.xml lists it, placed in the scope tree. The views point into the index
// file's buffer; a scope that Doxygen left out but a listed name implies (the parent of
// "std::hash< QString >") is made up with no refid.
struct DoxygenIndexCompound {
  std::string_view refid;
  std::string_view name;       // Doxygen's scoped name, "geometry::shapes::Circle"
  std::string_view localName;  // "Circle"
  DoxygenCompoundKind kind = DoxygenCompoundKind::Other;
  bool holdsGlobals = false;  // a file that declares members of the global scope
  std::int32_t parent = -1;   // enclosing scope; -1 for the root and for non-code compounds
  std::uint32_t firstMember = 0;
  std::uint32_t memberCount = 0;
  std::uint32_t firstChild = 0;
  std::uint32_t childCount = 0;
};

// The code model of a Doxygen XML folder. The index is read at once; each compound's own file
// is read the first time its details are asked for, so a large code base opens at once.
// Compound 0 (Root) is the global scope: its qualified name is the root name, its children
// are the top-level namespaces and classes and its members the global functions, variables,
// typedefs and macros of every file.
class DoxygenIndex {
 public:
  static constexpr int kRoot = 0;

  // Reads <xmlFolder>/index.xml. Throws sv::Error (FileNotFound, BadFileFormat) naming the
  // file, line and column.
  DoxygenIndex(const QString& xmlFolder, const QString& rootName);
  ~DoxygenIndex();

  DoxygenIndex(const DoxygenIndex&) = delete;
  DoxygenIndex& operator=(const DoxygenIndex&) = delete;

  const QString& Folder() const { return mFolder; }
  const QString& RootName() const { return mRootName; }
  // Bytes of index.xml.
  qint64 IndexSize() const { return mFile.Size(); }

  int Count() const { return static_cast<int>(mCompounds.size()); }
  const DoxygenIndexCompound& Compound(int id) const {
    return mCompounds[static_cast<std::size_t>(id)];
  }
  // Nested namespaces and classes of a scope, in index order.
  std::span<const std::int32_t> Children(int id) const;
  std::span<const DoxygenIndexMember> Members(int id) const;
  // Compounds outside the code tree: files, dirs, pages, groups...
  std::span<const std::int32_t> Others() const { return mOthers; }

  // The compound with Doxygen's scoped name, or -1.
  int FindByName(std::string_view name) const;
  // The compound with the qualified name (see QualifiedName), or -1.
  int FindQualified(const QString& qualifiedName) const;
  // The root name and the local names of the enclosing scopes joined by "~":
  // "geometry~geometry~shapes~Circle".
  QString QualifiedName(int id) const;
  // The compound that holds a qualified name, and in rest the member's part of the name: for
  // "root~ns~Class~f(int)" the compound root~ns~Class and "f(int)", for "root~ns~Class~~Class"
  // the same compound and "~Class". Rest is empty when the name is a compound's; -1 when the
  // name does not start with the root name.
  int FindScopeOf(const QString& qualifiedName, QString* rest) const;

  // The compound's details, read from its file on first use (the root's from the files that
  // declare global members). Throws sv::Error when a file is missing or malformed.
  const DoxygenCompound& Details(int id) const;
  bool IsLoaded(int id) const;
  // Compound files read so far, and their bytes.
  int FilesRead() const { return mFilesRead; }
  qint64 BytesRead() const { return mBytesRead; }
  // The path of a compound's own file.
  QString FileOf(std::string_view refid) const;
  // Called by DoxygenCompound for each file it reads.
  void CountRead(qint64 bytes) const;

 private:
  void ReadCompounds();
  void PlaceInScopes();
  bool HoldsGlobals(const DoxygenIndexCompound& file) const;
  std::span<const DoxygenIndexMember> Members(const DoxygenIndexCompound& compound) const;
  int ScopeFor(std::string_view scopeName);
  void BuildChildTable();
  int ChildNamed(int scope, std::string_view localName) const;

  QString mFolder;
  QString mRootName;
  DoxygenXmlFile mFile;
  std::vector<DoxygenIndexCompound> mCompounds;
  std::vector<DoxygenIndexMember> mMembers;
  std::vector<std::int32_t> mChildTable;
  std::vector<std::int32_t> mOthers;
  std::unordered_map<std::string_view, std::int32_t> mByName;  // code scopes
  mutable std::vector<std::unique_ptr<DoxygenCompound>> mDetails;
  mutable int mFilesRead = 0;
  mutable qint64 mBytesRead = 0;
};

}  // namespace sv
