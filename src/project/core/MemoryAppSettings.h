#pragma once

#include <QString>
#include <memory>

#include "model/AppSettings.h"
#include "model/ElementDef.h"
#include "model/NamespaceDefs.h"
#include "model/ProjectViewSettings.h"
#include "model/TaggedCommentDefs.h"
#include "model/Template.h"

namespace sv {

class TagDefinitionSet;
class ViewSettings;

// Application settings held in memory, set piece by piece: what a host or a test installs
// before the configuration files are read. It starts with empty collections, an empty tag set
// and view settings with every option off.
class MemoryAppSettings : public AppSettings {
 public:
  using TemplateCollection = KeyedCollection<std::shared_ptr<Template>>;
  using ElementDefCollection = KeyedCollection<std::shared_ptr<ElementDef>>;

  MemoryAppSettings();
  ~MemoryAppSettings() override;

  std::shared_ptr<TemplateCollection> Templates() const override { return mTemplates; }
  std::shared_ptr<sv::TaggedCommentDefs> TaggedCommentDefs() const override;
  void setTaggedCommentDefs(std::shared_ptr<sv::TaggedCommentDefs> defs) {
    mTagDefs = std::move(defs);
  }
  QString AppPath() const override { return mAppPath; }
  void setAppPath(const QString& value) { mAppPath = value; }
  std::shared_ptr<sv::ProjectViewSettings> ProjectViewSettings() const override;
  void setProjectViewSettings(std::shared_ptr<sv::ProjectViewSettings> settings) {
    mViewSettings = std::move(settings);
  }
  QString TempFolder() const override { return mTempFolder; }
  void setTempFolder(const QString& value) { mTempFolder = value; }
  // Null for a key nobody registered.
  std::shared_ptr<sv::NamespaceDefs> NamespaceDefs(const QString& key) const override;
  // Registers a set under a key, replacing one registered before.
  void setNamespaceDefs(const QString& key, std::shared_ptr<sv::NamespaceDefs> defs);
  std::shared_ptr<ElementDefCollection> ElementDefs() const override { return mElementDefs; }

 private:
  std::shared_ptr<TemplateCollection> mTemplates;
  std::shared_ptr<sv::TaggedCommentDefs> mTagDefs;
  std::shared_ptr<sv::ProjectViewSettings> mViewSettings;
  std::shared_ptr<ElementDefCollection> mElementDefs;
  KeyedCollection<std::shared_ptr<sv::NamespaceDefs>> mNamespaceDefs;
  QString mAppPath;
  QString mTempFolder;
};

}  // namespace sv
