#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <string_view>
#include <vector>

#include "project/doxygen/DoxygenKinds.h"
#include "project/doxygen/DoxygenMember.h"

namespace pugi {
class xml_node;
}

namespace sv {

class DoxygenIndex;
class DoxygenXmlFile;

// A base class named by a class's file.
struct DoxygenBase {
  QString name;   // as written: "Shape", "QList< T >"
  QString refid;  // empty for a base outside the documented code
  DoxygenAccess access = DoxygenAccess::Public;
  bool isVirtual = false;
};

// A class or namespace nested in a compound, with the access its file gives it.
struct DoxygenInner {
  QString refid;
  QString name;
  DoxygenAccess access = DoxygenAccess::Public;
};

// The details of one compound, read from its own file (<refid>.xml). Members keep their
// declaration order; each gets a qualified name that is unique in its scope and stable across
// runs: the scope's name, "~" and the member's name, with the normalised argument types added
// when the name is overloaded, and "#2", "#3"... when even those collide.
class DoxygenCompound {
 public:
  // Reads the compound's file; for the root, the global members of every file that has some.
  DoxygenCompound(const DoxygenIndex& index, int id);

  int Id() const { return mId; }
  DoxygenCompoundKind Kind() const { return mKind; }
  const QString& QualifiedName() const { return mQualifiedName; }
  DoxygenAccess Access() const { return mAccess; }
  const QString& Brief() const { return mBrief; }
  const std::vector<DoxygenMember>& Members() const { return mMembers; }
  const std::vector<DoxygenBase>& Bases() const { return mBases; }
  const std::vector<DoxygenInner>& InnerClasses() const { return mInnerClasses; }
  const std::vector<DoxygenInner>& InnerNamespaces() const { return mInnerNamespaces; }

  // A member or enum value by qualified name, or null.
  const DoxygenMember* FindMember(const QString& qualifiedName) const;
  // The access the file gives a nested class, None for one it does not list.
  DoxygenAccess InnerAccess(std::string_view refid) const;
  // True when the class declares a constructor; false means it has only the implicit one.
  bool DeclaresConstructor() const { return mDeclaresConstructor; }

 private:
  void ReadFile(const DoxygenIndex& index, std::string_view refid, std::string_view memberPrefix);
  void ReadCompoundDef(const DoxygenXmlFile& file, const pugi::xml_node& def,
                       const QString& memberPrefix);
  DoxygenMember ReadMember(const pugi::xml_node& node) const;
  void AddImplicitConstructor();
  void NameMembers(const DoxygenIndex& index);

  int mId;
  DoxygenCompoundKind mKind;
  QString mQualifiedName;
  QString mConstructorName;
  DoxygenAccess mAccess = DoxygenAccess::Public;
  QString mBrief;
  bool mDeclaresConstructor = false;
  std::vector<DoxygenMember> mMembers;
  std::vector<DoxygenBase> mBases;
  std::vector<DoxygenInner> mInnerClasses;
  std::vector<DoxygenInner> mInnerNamespaces;
  QSet<QString> mSeenIds;
  QHash<QString, const DoxygenMember*> mByQualifiedName;
};

}  // namespace sv
