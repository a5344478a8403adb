#pragma once

#include <QString>
#include <memory>

#include "model/ItemRange.h"

namespace sv {

class DocType;
class NamespaceDefs;

// The kinds of output of a project; SelectedDocTypes are those in use.
class DocTypes {
 public:
  virtual ~DocTypes() = default;

  virtual std::shared_ptr<DocType> Item(int index) const = 0;
  virtual std::shared_ptr<DocType> Item(const QString& key) const = 0;
  virtual int Count() const = 0;
  virtual std::shared_ptr<DocTypes> SelectedDocTypes() const = 0;
  virtual std::shared_ptr<DocType> HelpTemplatesFrom() const = 0;
  virtual void setHelpTemplatesFrom(const std::shared_ptr<DocType>& docType) = 0;
  // The document type of a template name; null when none uses it.
  virtual std::shared_ptr<DocType> Lookup(const QString& templateName) const = 0;
  // The merged namespace definitions of the selected types.
  virtual std::shared_ptr<NamespaceDefs> NameSpaces() const = 0;

  ItemIterator<DocTypes, std::shared_ptr<DocType>> begin() const { return {this, 1}; }
  ItemIterator<DocTypes, std::shared_ptr<DocType>> end() const { return {this, Count() + 1}; }
};

}  // namespace sv
