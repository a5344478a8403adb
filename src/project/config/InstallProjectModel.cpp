#include "project/config/InstallProjectModel.h"

#include "model/ModelFactory.h"
#include "project/config/AppConfig.h"
#include "project/config/AppDataFolder.h"
#include "project/core/ProjectModelFactory.h"

namespace sv {

std::shared_ptr<AppConfig> InstallProjectModel(const QString& dataFolder) {
  auto config = std::make_shared<AppConfig>(dataFolder.isEmpty() ? AppDataFolder() : dataFolder);
  InstallModel(std::make_shared<ProjectModelFactory>(config));
  return config;
}

}  // namespace sv
