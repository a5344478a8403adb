#pragma once

#include <QString>
#include <memory>

namespace sv {

class CodeItem;
class NamespaceProvider;

// What the tag rules need to know about a code element beyond the members every item has: the
// item that holds it, the file of the assembly a namespace comes from, and a member of a
// component by name. The answers here go through the element's namespace provider by qualified
// name ("Geo.Shape.Area()" lives in "Geo.Shape"); a host whose model knows more installs its own
// facts with CommentEditor::setElementFacts.
class ElementFacts {
 public:
  virtual ~ElementFacts();

  // The item that holds `item`; null when unknown.
  virtual std::shared_ptr<CodeItem> Parent(
      const std::shared_ptr<CodeItem>& item,
      const std::shared_ptr<NamespaceProvider>& provider) const;
  // The file name of the assembly a namespace item belongs to ("Geo.csproj"); empty when the
  // item is no namespace or the model does not say. The provider knows no assemblies, so the
  // answer here is always empty.
  virtual QString AssemblyFileName(const std::shared_ptr<CodeItem>& item,
                                   const std::shared_ptr<NamespaceProvider>& provider) const;
  // The member `name` ("New()") of a component; null when it has none.
  virtual std::shared_ptr<CodeItem> Member(
      const std::shared_ptr<CodeItem>& component, const QString& name,
      const std::shared_ptr<NamespaceProvider>& provider) const;

  // The qualified name of the item that holds `qualifiedName`: the text before its last dot
  // outside brackets; empty for a top item.
  static QString ParentName(const QString& qualifiedName);
};

}  // namespace sv
