#pragma once

#include <QString>
#include <memory>

namespace sv {

class ProjectModel;

// Reads a project file (".svproj") and the content files (".svc") it lists.
class ProjectReader {
 public:
  // A new project read from path, not dirty. A missing file raises FileNotFound; a malformed
  // one, or one of a newer major version, raises BadFileFormat naming the file, line and
  // column. Nothing is changed when it fails: the caller keeps the project it had. A content
  // file that does not exist yet holds no comments.
  static std::shared_ptr<ProjectModel> Load(const QString& path);
};

}  // namespace sv
