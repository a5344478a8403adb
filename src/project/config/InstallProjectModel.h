#pragma once

#include <QString>
#include <memory>

namespace sv {

class AppConfig;

// What a host calls at start-up: reads the shipped configuration from dataFolder (AppDataFolder()
// when empty) and installs our model factory with it as the application's settings. Answers the
// configuration; raises as AppConfig does, leaving the installed model as it was.
std::shared_ptr<AppConfig> InstallProjectModel(const QString& dataFolder = {});

}  // namespace sv
