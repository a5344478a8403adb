#pragma once

#include <QString>
#include <QVariant>

#include "model/TaggedCommentDef.h"

namespace sv {

// The definition of one tag, with a setter for every member.
class TagDefinition : public TaggedCommentDef {
 public:
  explicit TagDefinition(QString tagIdentifier) : mTagIdentifier(std::move(tagIdentifier)) {}

  QString TagIdentifier() const override { return mTagIdentifier; }
  QString Name() const override { return mName; }
  void setName(const QString& value) { mName = value; }
  bool IsGeneral() const override { return mIsGeneral; }
  void setIsGeneral(bool value) { mIsGeneral = value; }
  QVariant DescriptionFormat() const override { return mDescriptionFormat; }
  void setDescriptionFormat(const QVariant& value) { mDescriptionFormat = value; }
  QString DesignerProgID() const override { return mDesignerProgID; }
  void setDesignerProgID(const QString& value) { mDesignerProgID = value; }
  QString DesignFlag() const override { return mDesignFlag; }
  void setDesignFlag(const QString& value) { mDesignFlag = value; }
  QString Qualifier() const override { return mQualifier; }
  void setQualifier(const QString& value) { mQualifier = value; }
  QString Caption() const override { return mCaption; }
  void setCaption(const QString& value) { mCaption = value; }
  QString Description() const override { return mDescription; }
  void setDescription(const QString& value) { mDescription = value; }
  QString ExcludeFlags() const override { return mExcludeFlags; }
  void setExcludeFlags(const QString& value) { mExcludeFlags = value; }
  QString NameSpaces() const override { return mNameSpaces; }
  void setNameSpaces(const QString& value) { mNameSpaces = value; }
  QString ImageName() const override { return mImageName; }
  void setImageName(const QString& value) { mImageName = value; }
  QString GroupName() const override { return mGroupName; }
  void setGroupName(const QString& value) { mGroupName = value; }
  QString XMLCommentTypes() const override { return mXMLCommentTypes; }
  void setXMLCommentTypes(const QString& value) { mXMLCommentTypes = value; }

 private:
  QString mTagIdentifier;
  QString mName;
  bool mIsGeneral = false;
  QVariant mDescriptionFormat;
  QString mDesignerProgID;
  QString mDesignFlag;
  QString mQualifier;
  QString mCaption;
  QString mDescription;
  QString mExcludeFlags;
  QString mNameSpaces;
  QString mImageName;
  QString mGroupName;
  QString mXMLCommentTypes;
};

}  // namespace sv
