#pragma once

#include <QString>
#include <memory>

#include "model/TaggedComment.h"
#include "model/TaggedCommentDefs.h"

namespace sv {

// A comment held in memory. Its definition is the one set with setTaggedCommentDef, or else the
// definition of its current tag in the tag set it was given, so that a comment whose tag
// changes finds its new definition.
class ProjectComment : public TaggedComment {
 public:
  // A fresh unique id when id is empty.
  explicit ProjectComment(QString id = {});

  QString TagIdentifier() const override { return mTagIdentifier; }
  void setTagIdentifier(const QString& value) override { mTagIdentifier = value; }
  QString Qualifier() const override { return mQualifier; }
  void setQualifier(const QString& value) override { mQualifier = value; }
  QString ParsedText() const override { return mParsedText; }
  void setParsedText(const QString& value) override { mParsedText = value; }
  long Status() const override { return mStatus; }
  void setStatus(long value) override { mStatus = value; }
  QString Id() const override { return mId; }
  bool IsHidden() const override { return mIsHidden; }
  void setIsHidden(bool value) override { mIsHidden = value; }
  QString XMLCommentType() const override { return mXMLCommentType; }
  void setXMLCommentType(const QString& value) override { mXMLCommentType = value; }
  QString Text() const override { return mText; }
  void setText(const QString& value) override { mText = value; }
  std::shared_ptr<CodeItem> Item() const override { return mItem.lock(); }
  void setItem(const std::shared_ptr<CodeItem>& item) override { mItem = item; }
  std::shared_ptr<sv::TaggedCommentDef> TaggedCommentDef() const override;

  void setTaggedCommentDef(std::shared_ptr<sv::TaggedCommentDef> def) { mDef = std::move(def); }
  // The set in which a comment without its own definition looks up its tag.
  void setTagDefinitions(std::shared_ptr<TaggedCommentDefs> defs) { mTagDefs = std::move(defs); }

  // A new unique id: no "|", so that it can stand in the key field of a page span.
  static QString NewId();

 private:
  QString mId;
  QString mTagIdentifier;
  QString mQualifier;
  QString mParsedText;
  QString mXMLCommentType;
  QString mText;
  long mStatus = CommentStatus::Unchanged;
  bool mIsHidden = false;
  std::weak_ptr<CodeItem> mItem;
  std::shared_ptr<sv::TaggedCommentDef> mDef;
  std::shared_ptr<TaggedCommentDefs> mTagDefs;
};

}  // namespace sv
