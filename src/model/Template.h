#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"

namespace sv {

class NamespaceDefs;
class PageLayout;
class TOCDefinition;
class TemplateVariable;

// An output format definition.
class Template {
 public:
  virtual ~Template() = default;

  virtual QString Name() const = 0;
  virtual std::shared_ptr<KeyedCollection<std::shared_ptr<TOCDefinition>>> TOCDefinitions()
      const = 0;
  virtual std::shared_ptr<KeyedCollection<std::shared_ptr<TemplateVariable>>> Variables() const = 0;
  virtual std::shared_ptr<NamespaceDefs> NameSpaces() const = 0;
  // Feature letters; "C" is community.
  virtual QString Features() const = 0;
  // The template's page layouts, keyed by name.
  virtual std::shared_ptr<KeyedCollection<std::shared_ptr<PageLayout>>> PageLayouts() const = 0;
  // Letters; "x" keeps the template out of the in-place page editor's choice.
  virtual QString Flags() const = 0;
};

}  // namespace sv
