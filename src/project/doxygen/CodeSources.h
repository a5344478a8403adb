#pragma once

#include <QString>
#include <memory>

namespace sv {

class ProjectModel;

// The code providers a project file can name, and how a loaded project opens its code.
class CodeSources {
 public:
  // The name the Doxygen code model is registered under.
  static QString Doxygen() { return QStringLiteral("doxygen"); }
  static bool Knows(const QString& provider);
  // Reads the index of the project's code source and registers its provider under the source's
  // provider name; a project without a code source is left alone. The XML folder is taken
  // relative to the project file, and the root name defaults to the file's base name. Throws
  // sv::Error naming the index file when it cannot be read.
  static void Open(const std::shared_ptr<ProjectModel>& project);
  // A new, unsaved project over a Doxygen XML folder (the one that holds index.xml). The root
  // name defaults to the folder's name, or the name of the folder above a folder called "xml"
  // (where Doxygen writes it). Throws sv::Error naming the index file when it cannot be read.
  static std::shared_ptr<ProjectModel> OpenXmlFolder(const QString& xmlFolder,
                                                     const QString& rootName = {});
};

}  // namespace sv
