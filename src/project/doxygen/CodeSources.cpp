#include "project/doxygen/CodeSources.h"

#include <QDir>
#include <QFileInfo>

#include "project/doxygen/DoxygenProvider.h"
#include "project/model/ProjectModel.h"

namespace sv {
namespace {
QString RootNameFor(const QString& xmlFolder) {
  const QFileInfo folder(QDir::cleanPath(QFileInfo(xmlFolder).absoluteFilePath()));
  const QString above = QFileInfo(folder.absolutePath()).fileName();
  return folder.fileName() == QLatin1String("xml") && !above.isEmpty() ? above : folder.fileName();
}
}  // namespace

bool CodeSources::Knows(const QString& provider) {
  return provider.compare(Doxygen(), Qt::CaseInsensitive) == 0;
}

void CodeSources::Open(const std::shared_ptr<ProjectModel>& project) {
  const sv::CodeSource& source = project->CodeSource();
  if (source.IsEmpty() || !Knows(source.provider)) return;
  const QFileInfo file(project->FileName());
  const QString folder = QDir::cleanPath(file.absoluteDir().filePath(source.xml));
  const QString root = source.root.isEmpty() ? file.completeBaseName() : source.root;
  project->AddNamespaceProvider(source.provider, DoxygenProvider::Open(folder, root, project));
}

}  // namespace sv

namespace sv {

std::shared_ptr<ProjectModel> CodeSources::OpenXmlFolder(const QString& xmlFolder,
                                                         const QString& rootName) {
  auto project = std::make_shared<ProjectModel>();
  const QString root = rootName.isEmpty() ? RootNameFor(xmlFolder) : rootName;
  project->AddNamespaceProvider(Doxygen(), DoxygenProvider::Open(xmlFolder, root, project));
  project->setDirty(false);
  return project;
}

}  // namespace sv
