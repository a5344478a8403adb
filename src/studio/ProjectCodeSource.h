#pragma once

#include <QString>

namespace sv {

class ProjectModel;

// Where an open project's code comes from, in a form that does not depend on where the project
// file is: the Doxygen XML folder in full and the root name of the items' qualified names. Saving
// the project to another place (Save As, or the first save of a project opened straight from an
// XML folder) writes its code source from this, so that the saved file opens the same code
// under the same names, and its comments stay with their items.
struct ProjectCodeSource {
  QString xmlFolder;  // absolute; empty for a project without code
  QString root;

  // openedPath: the project file, or the XML folder the project was opened from.
  static ProjectCodeSource Of(ProjectModel& project, const QString& openedPath);
  // Points the project's code source at the XML folder as seen from a project file at path.
  void ApplyTo(ProjectModel& project, const QString& path) const;
};

}  // namespace sv
