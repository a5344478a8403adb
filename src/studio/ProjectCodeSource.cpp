#include "studio/ProjectCodeSource.h"

#include <QDir>
#include <QFileInfo>

#include "model/CodeItem.h"
#include "model/NamespaceProvider.h"
#include "project/doxygen/CodeSources.h"
#include "project/model/ProjectModel.h"

namespace sv {

ProjectCodeSource ProjectCodeSource::Of(ProjectModel& project, const QString& openedPath) {
  const QFileInfo opened(openedPath);
  if (opened.isDir()) {
    // The provider chose the root name; its root item carries it.
    const auto provider = project.GetNamespaceProvider(CodeSources::Doxygen());
    const auto rootItem = provider ? provider->GetRootItem(nullptr, QString()) : nullptr;
    return {QDir::cleanPath(opened.absoluteFilePath()),
            rootItem ? rootItem->QualifiedName().value_or(QString()) : QString()};
  }
  const sv::CodeSource& source = project.CodeSource();
  if (source.IsEmpty()) return {};
  // As the reader opened it: relative to the file, rooted at the file's name unless it says.
  return {QDir::cleanPath(opened.absoluteDir().filePath(source.xml)),
          source.root.isEmpty() ? opened.completeBaseName() : source.root};
}

void ProjectCodeSource::ApplyTo(ProjectModel& project, const QString& path) const {
  if (xmlFolder.isEmpty()) return;
  sv::CodeSource source = project.CodeSource();
  if (source.provider.isEmpty()) source.provider = CodeSources::Doxygen();
  source.xml = QFileInfo(path).absoluteDir().relativeFilePath(xmlFolder);
  source.root = root;
  if (source != project.CodeSource()) project.setCodeSource(source);
}

}  // namespace sv
