#pragma once

// Builds definitions, tag definitions, items, comments and a project from a short text, so that
// a test states only what matters to it.
//
// The description is a tree by indentation (spaces; a deeper line hangs under the line above
// it). Blank lines and lines starting with "//" are skipped. Words are separated by spaces; a
// value with spaces is quoted (caption="Two words", \" inside quotes is a quote). Option names
// ignore case; a bare option word means true and "name=false" false. Three kinds of section:
//
//   definitions sv.test caption="Test code" view=pift provider=memory
//     Project moniker=proj image=project flags=r CanExclude=false
//       Namespace group=Namespaces GroupedInComments
//         @Namespace
//         Class caption="[Name]" PreloadChildren
//           Member flags=f Selectable=false
//   tags designer=SV.TextDesigner
//     ##SUMMARY name=Summary caption=Summary group=General xml=summary namespaces=cls,mem general
//     ##OBSOLETE name=Obsolete design=f exclude=x qualifier=name designer={None}
//   items
//     proj Geometry project moniker=geo include
//       Namespace Shapes
//         ##SUMMARY "Shapes to draw." id=c1
//         Class Circle access=Public root=false
//           ##OBSOLETE status=3
//           Member Draw member access=Private overloaded
//
// definitions NAME [caption=] [view=] [provider=]: a definition set, item 1 its first line. Each
// line below is a definition: its Key, then moniker= (TypeMoniker, default the key), image=
// (default the key in lower case), group= (GroupCaption), provider= (default the section's, or
// "memory"), flags=, caption= (CaptionExpression), and the booleans CanExclude, Selectable
// (both true by default), PreloadChildren, PreloadChildrenInSelection, LoadChildrenOnAdd,
// GroupedInComments, GroupedInSelection. A line hangs its definition into the ChildDefs of the
// line above; "@Key" hangs in a definition made earlier (recursive kinds).
//
// tags [designer=]: tag definitions (designer= is the DefaultDesignerProgID). Each line is a
// TagIdentifier, then name=, caption=, group=, design= (DesignFlag), exclude= (ExcludeFlags),
// qualifier=, namespaces=, xml= (XMLCommentTypes), designer= (DesignerProgID), image=,
// description=, format= (DescriptionFormat) and general (IsGeneral).
//
// items [definitions=NAME]: items of a definition set (default the first). Each line is a
// definition key or moniker and a name, then: project, component or member (the kind; a plain
// item otherwise), access=, type= (TypeName of a plain item or member; default the definition's
// key or "Member"), qn= (default the parent's qualified name, ".", the name), moniker= (how
// GetRootItem finds a root; default its qualified name), root, include, exclude (give RootFlag,
// IncludeFlag, ExcludeFlag with that value; an item lacks them otherwise), overloaded, explicit,
// overloadblocks (members), nocomments (no TaggedComments at all), caption= (what the DDP
// answers for the item), resolve=KEY (the DDP resolves the item to that definition), filter=
// (its relevant content filter), group=QN (its VBProjectGroup: an item described above). A
// component under a project also goes into the project's Components. A line whose first word
// starts with "#" (or "comment TAG") is a comment on the item above: the tag, an optional quoted
// text, then status= (default 0), hidden, id= (default a fresh one), xml= (XMLCommentType),
// qualifier=.
//
// A mistake raises sv::Error BadFileFormat: "Model description, line 7: <what>: <line>".

#include <QHash>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "model/CodeItem.h"

namespace sv {
class Definition;
class DefinitionSet;
class MemoryAppSettings;
class MemoryDDP;
class MemoryProvider;
class NamespaceDef;
class ProjectComment;
class ProjectModel;
class ProjectModelFactory;
class TagDefinitionSet;
}  // namespace sv

namespace sv::test {

class DescriptionLine;

class ModelBuilder {
 public:
  enum class Kind { Plain, Project, Component, Member };

  // What one item line says; AddItem takes it from code too.
  struct ItemInfo {
    QString definition;  // key or moniker
    QString name;
    Kind kind = Kind::Plain;
    std::optional<QString> access;
    QString typeName;
    QString qualifiedName;
    QString moniker;
    std::optional<bool> rootFlag;
    std::optional<bool> includeFlag;
    std::optional<bool> excludeFlag;
    bool overloaded = false;
    bool isExplicit = false;
    bool overloadBlocks = false;
    bool noComments = false;
    QString caption;
    QString resolve;
    QString filter;
    QString group;
  };

  // Parses a description; raises BadFileFormat naming the line of the first mistake.
  explicit ModelBuilder(const QString& description);
  ~ModelBuilder();

  ModelBuilder(const ModelBuilder&) = delete;
  ModelBuilder& operator=(const ModelBuilder&) = delete;
  ModelBuilder(ModelBuilder&&) noexcept;

  // The first definition set, or the one of a name; raises SubscriptOutOfRange when missing.
  std::shared_ptr<DefinitionSet> Definitions(const QString& name = {}) const;
  // A definition of the first set by key or moniker; raises SubscriptOutOfRange when missing.
  std::shared_ptr<Definition> Def(const QString& keyOrMoniker) const;
  std::shared_ptr<TagDefinitionSet> Tags() const { return mTags; }
  std::shared_ptr<MemoryProvider> Provider() const { return mProvider; }
  std::shared_ptr<MemoryDDP> Ddp() const;
  // The project with the provider registered under every provider name of the definitions and
  // the described comments in its comment store. Not dirty.
  std::shared_ptr<ProjectModel> Project() const { return mProject; }
  // Settings with the tags and every definition set under its name; the factory hands them out.
  std::shared_ptr<MemoryAppSettings> AppSettings() const { return mSettings; }
  std::shared_ptr<ProjectModelFactory> Factory() const { return mFactory; }

  // The item of a qualified name; raises SubscriptOutOfRange naming it when missing.
  std::shared_ptr<CodeItem> Item(const QString& qualifiedName) const;
  template <class T>
  std::shared_ptr<T> ItemAs(const QString& qualifiedName) const {
    return std::dynamic_pointer_cast<T>(Item(qualifiedName));
  }
  // The top items with their definitions, in the order described.
  const std::vector<std::pair<std::shared_ptr<NamespaceDef>, std::shared_ptr<CodeItem>>>& Roots()
      const {
    return mRoots;
  }
  // A described comment by id; raises SubscriptOutOfRange when missing.
  std::shared_ptr<ProjectComment> Comment(const QString& id) const;

  // Adds an item of the items' definition set under parent (null: a new root).
  std::shared_ptr<CodeItem> AddItem(const ItemInfo& info,
                                    const std::shared_ptr<CodeItem>& parent = nullptr);

 private:
  struct Frame;

  void parse(const QString& description);
  void parseLine(const DescriptionLine& line, std::vector<Frame>& stack);
  void startSection(const DescriptionLine& line, std::vector<Frame>& stack);
  void addDefinition(const DescriptionLine& line, std::vector<Frame>& stack);
  void addTag(const DescriptionLine& line);
  void addItemLine(const DescriptionLine& line, std::vector<Frame>& stack);
  void addComment(const DescriptionLine& line, const std::shared_ptr<CodeItem>& item);
  void finish();
  std::shared_ptr<DefinitionSet> itemSet() const;
  std::shared_ptr<NamespaceDef> itemDefinition(const QString& keyOrMoniker) const;

  std::vector<std::shared_ptr<DefinitionSet>> mSets;
  std::shared_ptr<DefinitionSet> mItemSet;
  std::shared_ptr<TagDefinitionSet> mTags;
  std::shared_ptr<MemoryProvider> mProvider;
  std::shared_ptr<MemoryAppSettings> mSettings;
  std::shared_ptr<ProjectModelFactory> mFactory;
  std::shared_ptr<ProjectModel> mProject;
  std::vector<std::pair<std::shared_ptr<NamespaceDef>, std::shared_ptr<CodeItem>>> mRoots;
  QHash<QString, std::shared_ptr<ProjectComment>> mComments;
  QString mDefaultProvider;
};

// A model of namespaces x classes x members under one root, built in code for benchmarks:
// definitions Root > Namespace > Class > Member (all provider "memory"), names "Ns<i>",
// "Class<j>", "Member<k>" counting from 1, members public.
ModelBuilder BuildSyntheticModel(int namespaces, int classes, int members);

}  // namespace sv::test
