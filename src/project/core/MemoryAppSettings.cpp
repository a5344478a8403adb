#include "project/core/MemoryAppSettings.h"

#include "project/core/TagDefinitionSet.h"
#include "project/core/ViewSettings.h"

namespace sv {

MemoryAppSettings::MemoryAppSettings()
    : mTemplates(std::make_shared<TemplateCollection>()),
      mTagDefs(std::make_shared<TagDefinitionSet>()),
      mViewSettings(std::make_shared<ViewSettings>()),
      mElementDefs(std::make_shared<ElementDefCollection>()) {}

MemoryAppSettings::~MemoryAppSettings() = default;

std::shared_ptr<TaggedCommentDefs> MemoryAppSettings::TaggedCommentDefs() const {
  return mTagDefs;
}

std::shared_ptr<ProjectViewSettings> MemoryAppSettings::ProjectViewSettings() const {
  return mViewSettings;
}

std::shared_ptr<NamespaceDefs> MemoryAppSettings::NamespaceDefs(const QString& key) const {
  return mNamespaceDefs.Find(key).value_or(nullptr);
}

void MemoryAppSettings::setNamespaceDefs(const QString& key,
                                         std::shared_ptr<sv::NamespaceDefs> defs) {
  if (mNamespaceDefs.Contains(key)) mNamespaceDefs.Remove(key);
  mNamespaceDefs.Add(std::move(defs), key);
}

}  // namespace sv
