#pragma once

#include <QString>
#include <memory>

#include "model/CommentFile.h"

namespace sv {

// A content file of the project: the comments of RootItemName and of every item below it are
// saved in FileName (relative to the project's folder) rather than in the project file.
class ContentFile : public CommentFile {
 public:
  ContentFile(QString fileName, QString rootItemName,
              std::shared_ptr<sv::DocType> docType = nullptr)
      : mFileName(std::move(fileName)),
        mRootItemName(std::move(rootItemName)),
        mDocType(std::move(docType)) {}

  QString FileName() const override { return mFileName; }
  QString RootItemName() const override { return mRootItemName; }
  std::shared_ptr<sv::DocType> DocType() const override { return mDocType; }

  // True for the root item itself and for every item whose qualified name lies below it.
  bool Holds(const QString& qualifiedName) const;

 private:
  QString mFileName;
  QString mRootItemName;
  std::shared_ptr<sv::DocType> mDocType;
};

}  // namespace sv
