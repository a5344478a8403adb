#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"

namespace sv {

class ElementDef;
class NamespaceDefs;
class ProjectViewSettings;
class TaggedCommentDefs;
class Template;

// The application-wide settings: the shipped configuration and the shared view options.
class AppSettings {
 public:
  virtual ~AppSettings() = default;

  virtual std::shared_ptr<KeyedCollection<std::shared_ptr<Template>>> Templates() const = 0;
  virtual std::shared_ptr<sv::TaggedCommentDefs> TaggedCommentDefs() const = 0;
  virtual QString AppPath() const = 0;
  virtual std::shared_ptr<sv::ProjectViewSettings> ProjectViewSettings() const = 0;
  virtual QString TempFolder() const = 0;
  // The namespace definition set registered under a key ("sv.net", ...); null when none is.
  virtual std::shared_ptr<sv::NamespaceDefs> NamespaceDefs(const QString& key) const = 0;
  // The meta element definitions, keyed by element name.
  virtual std::shared_ptr<KeyedCollection<std::shared_ptr<ElementDef>>> ElementDefs() const = 0;
};

}  // namespace sv
