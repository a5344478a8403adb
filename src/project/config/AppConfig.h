#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "model/AppSettings.h"
#include "model/ElementDef.h"
#include "model/KeyedCollection.h"
#include "model/NamespaceDefs.h"
#include "model/ProjectViewSettings.h"
#include "model/TaggedCommentDefs.h"
#include "model/Template.h"

namespace sv {

class TagDefinitionSet;
class ViewSettings;

// The application settings over the configuration that ships with the product: every namespace
// definition set in <data>/config/namespaces/*.xml (registered under its name), the tags of
// <data>/config/tags.xml and the meta elements of <data>/config/elements.xml. The view options
// are shared in memory by every tree of the process.
class AppConfig : public AppSettings {
 public:
  using TemplateCollection = KeyedCollection<std::shared_ptr<Template>>;
  using ElementDefCollection = KeyedCollection<std::shared_ptr<ElementDef>>;

  // Reads everything at once, so that a broken file shows at start-up. Raises FileNotFound for
  // a missing file and BadFileFormat (file, line, column) for a malformed one.
  explicit AppConfig(const QString& dataFolder);
  ~AppConfig() override;

  AppConfig(const AppConfig&) = delete;
  AppConfig& operator=(const AppConfig&) = delete;

  // Empty: templates are not read yet.
  std::shared_ptr<TemplateCollection> Templates() const override { return mTemplates; }
  std::shared_ptr<sv::TaggedCommentDefs> TaggedCommentDefs() const override;
  // The data folder, ending in "/"; icons/ and templates/ lie below it.
  QString AppPath() const override { return mAppPath; }
  std::shared_ptr<sv::ProjectViewSettings> ProjectViewSettings() const override;
  // A folder of this user's own below the system's temporary folder, ending in "/"; made when
  // missing. Raises PathNotFound when it cannot be made or belongs to someone else.
  QString TempFolder() const override;
  std::shared_ptr<sv::NamespaceDefs> NamespaceDefs(const QString& key) const override;
  std::shared_ptr<ElementDefCollection> ElementDefs() const override { return mElementDefs; }

  // The names of the definition sets, in the order read (file names sorted).
  QStringList NamespaceDefsNames() const;

 private:
  QString mAppPath;
  std::shared_ptr<TemplateCollection> mTemplates;
  std::shared_ptr<TagDefinitionSet> mTagDefs;
  std::shared_ptr<ViewSettings> mViewSettings;
  std::shared_ptr<ElementDefCollection> mElementDefs;
  KeyedCollection<std::shared_ptr<sv::NamespaceDefs>> mNamespaceDefs;
};

}  // namespace sv
