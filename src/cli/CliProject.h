#pragma once

#include <memory>

namespace sv {

class DoxygenProvider;
class ProjectModel;
struct CliOptions;

// Opens what a command works on: the project file, whose code source registers the provider,
// or a new project over the Doxygen XML folder given in its place. Raises sv::Error with a
// message that names the file when either cannot be read.
std::shared_ptr<ProjectModel> OpenCliProject(const CliOptions& options);

// The project's code model; raises when the project has none.
std::shared_ptr<DoxygenProvider> CodeProviderOf(ProjectModel& project);

}  // namespace sv
