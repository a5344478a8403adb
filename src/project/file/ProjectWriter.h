#pragma once

#include <QString>

#include "project/file/AtomicFile.h"

namespace sv {

class ProjectModel;

// Writes a project file (".svproj") and its content files (".svc").
class ProjectWriter {
 public:
  // Saves the project to path, or to its own file name when path is empty, and makes that
  // its file name. Every file is replaced atomically with a ".bak" of the previous version;
  // content files go first, the project file last. Deleted comments are purged, and the
  // project is no longer dirty. A failure raises an error and leaves the files on disk as they
  // were and the project still dirty.
  static void Save(ProjectModel& project, const QString& path = {},
                   const AtomicFile::FaultInjector& fault = {});
  // The project file's text as Save writes it.
  static QByteArray ProjectText(const ProjectModel& project);
};

}  // namespace sv
