#pragma once

#include <memory>

#include "model/ModelFactory.h"

namespace sv {

// The factory of our model: comments and comment lists held in memory, and the one settings
// object it was given. Install it with InstallModel.
class ProjectModelFactory : public ModelFactory {
 public:
  // Starts with an empty MemoryAppSettings when settings is null.
  explicit ProjectModelFactory(std::shared_ptr<sv::AppSettings> settings = nullptr);

  // A ProjectComment with a fresh Id and Status New that finds its definition in the tag set of
  // the settings.
  std::shared_ptr<TaggedComment> NewTaggedComment() override;
  std::shared_ptr<TaggedComments> NewTaggedComments() override;
  std::shared_ptr<StringBuilder> NewStringBuilder() override;
  // Not available until the template parser exists: each raises NotSupported.
  std::shared_ptr<ParserTemplate> NewParserTemplate() override;
  std::shared_ptr<Example> NewExample() override;
  std::shared_ptr<sv::AppSettings> AppSettings() override { return mSettings; }
  void setAppSettings(std::shared_ptr<sv::AppSettings> settings) {
    mSettings = std::move(settings);
  }

 private:
  std::shared_ptr<sv::AppSettings> mSettings;
};

}  // namespace sv
