#pragma once

#include <QString>
#include <QVariant>

namespace sv {

// One tag: what its comments are called, where they show and which items may have them.
class TaggedCommentDef {
 public:
  virtual ~TaggedCommentDef() = default;

  // Built-in identifiers are two hash signs and a name ("##SUMMARY").
  virtual QString TagIdentifier() const = 0;
  virtual QString Name() const = 0;
  virtual bool IsGeneral() const = 0;
  virtual QVariant DescriptionFormat() const = 0;
  // The designer class; "{None}" means the tag has no page.
  virtual QString DesignerProgID() const = 0;
  // Letters; "f" alone makes the tag a flag.
  virtual QString DesignFlag() const = 0;
  // Non-empty marks a legacy tag that needs a qualifier.
  virtual QString Qualifier() const = 0;
  // Caption of the tag's bar item or toolbar button; empty for a row of the tag list.
  virtual QString Caption() const = 0;
  virtual QString Description() const = 0;
  // Letters; "x" keeps the tag out of the addable list and the model comment grid.
  virtual QString ExcludeFlags() const = 0;
  // Comma list of the namespace monikers the tag applies to.
  virtual QString NameSpaces() const = 0;
  virtual QString ImageName() const = 0;
  // Explorer bar group; empty or unknown means "other".
  virtual QString GroupName() const = 0;
  // Comma list of XML element names; the first is the one exported.
  virtual QString XMLCommentTypes() const = 0;
};

}  // namespace sv
