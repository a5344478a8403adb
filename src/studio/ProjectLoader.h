#pragma once

#include <QString>
#include <memory>

class QWidget;

namespace sv {

class ProjectModel;

// What opening a path gave: the project, or why there is none.
struct LoadedProject {
  std::shared_ptr<ProjectModel> project;
  QString error;
};

// Opens what the author chose: a project file (".svproj"), whose code source opens with it, or
// a Doxygen XML folder, which becomes a new, unsaved project. Nothing here throws: a failure
// comes back as the reader's message, which names the file and, for a malformed one, the line
// and column.
class ProjectLoader {
 public:
  static LoadedProject Load(const QString& path);
  // The same on a worker thread, while a busy progress dialog over parent keeps the window
  // alive; answers when the load has ended. The model holds no QObjects, so the project can
  // cross to the UI thread as it is.
  static LoadedProject LoadWithProgress(const QString& path, QWidget* parent);
};

}  // namespace sv
