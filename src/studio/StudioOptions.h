#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace sv {

// The command line of scrivara-studio:
//   scrivara-studio [PATH]                                   opens a project file or XML folder
//   scrivara-studio --screenshot OUT.png [--select NAME] [PATH]
// A screenshot without a path is taken of the bundled sample.
struct StudioOptions {
  QString path;
  QString screenshot;
  QString select;

  // The options of the arguments (the program name first); an error names what is wrong.
  static StudioOptions Parse(const QStringList& arguments, QString* error);
  static QString Usage();
};

// The bundled sample project: $SCRIVARA_SAMPLE when set, else samples/geometry/geometry.svproj
// beside the data folder (the source tree's, for a program run from its build folder). Raises
// PathNotFound naming where it looked.
QString SampleProject();

}  // namespace sv
