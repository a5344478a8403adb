#include "cli/CliProject.h"

#include <QDir>
#include <QFileInfo>

#include "cli/CliOptions.h"
#include "model/Error.h"
#include "project/doxygen/CodeSources.h"
#include "project/doxygen/DoxygenProvider.h"
#include "project/file/ProjectReader.h"
#include "project/model/ProjectModel.h"

namespace sv {
namespace {
const QString kProvider = CodeSources::Doxygen();

}  // namespace

std::shared_ptr<ProjectModel> OpenCliProject(const CliOptions& options) {
  if (!options.project.isEmpty()) return ProjectReader::Load(options.project);
  return CodeSources::OpenXmlFolder(options.doxygenXml, options.root);
}

std::shared_ptr<DoxygenProvider> CodeProviderOf(ProjectModel& project) {
  auto provider =
      std::dynamic_pointer_cast<DoxygenProvider>(project.GetNamespaceProvider(kProvider));
  if (!provider)
    Raise(ErrorNumber::ObjectRequired,
          QStringLiteral("The project %1 names no code source").arg(project.FileName()));
  return provider;
}

}  // namespace sv
