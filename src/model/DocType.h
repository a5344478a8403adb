#pragma once

#include <QString>
#include <memory>

#include "model/ModelTypes.h"

namespace sv {

class DocTypePlugIn;
class NamespaceDefs;
class TOCChoice;
class Template;

// One kind of output of a project.
class DocType {
 public:
  virtual ~DocType() = default;

  virtual std::shared_ptr<sv::TOCChoice> TOCChoice() const = 0;
  // The project-specific model comments of this type, keyed by comment Id.
  virtual std::shared_ptr<CommentCollection> ModelComments() const = 0;
  virtual std::shared_ptr<sv::NamespaceDefs> NamespaceDefs() const = 0;
  // The type's plug-in; null for a type without one.
  virtual std::shared_ptr<DocTypePlugIn> PlugIn() const = 0;
  virtual std::shared_ptr<sv::Template> Template() const = 0;
  virtual QString Key() const = 0;
  virtual int ItemCount() const = 0;
  virtual QString Caption() const = 0;
};

}  // namespace sv
