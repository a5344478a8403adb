#pragma once

#include <QString>

namespace sv {

// A path split into its folder and file name. The folder is kept in normal form: "~" expanded,
// "." and ".." steps and doubled slashes removed, and one trailing "/". Relative paths stay
// relative. A leading dot belongs to the name ("/home/ann/.profile" has no extension).
class FilePath {
 public:
  FilePath() = default;
  explicit FilePath(const QString& fullPath);

  QString FullPath() const;
  void setFullPath(const QString& path);
  QString Folder() const { return mFolder; }
  // Sets the folder and keeps the file name.
  void setFolder(const QString& folder);
  QString FileName() const { return mFileName; }
  QString BaseName() const;
  // Without the dot.
  QString Extension() const;
  // Replaces the extension (a leading dot is ignored); an empty one removes it.
  void setExtension(const QString& extension);

  bool FolderExists() const;
  // Creates the folder and any missing parents; raises when that fails.
  void CreateFolder() const;

 private:
  qsizetype ExtensionDot() const;

  QString mFolder;
  QString mFileName;
};

}  // namespace sv
