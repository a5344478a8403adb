#pragma once

#include <QString>

namespace sv {

class AdditionalFile {
 public:
  QString FileName() const { return mFileName; }
  void setFileName(const QString& value) { mFileName = value; }
  QString SourceFolder() const { return mSourceFolder; }
  void setSourceFolder(const QString& value) { mSourceFolder = value; }

 private:
  QString mFileName;
  QString mSourceFolder;
};

}  // namespace sv
