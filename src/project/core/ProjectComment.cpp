#include "project/core/ProjectComment.h"

#include <QUuid>

namespace sv {

ProjectComment::ProjectComment(QString id) : mId(id.isEmpty() ? NewId() : std::move(id)) {}

std::shared_ptr<TaggedCommentDef> ProjectComment::TaggedCommentDef() const {
  if (mDef || !mTagDefs) return mDef;
  return mTagDefs->Item(mTagIdentifier);
}

QString ProjectComment::NewId() {
  return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

}  // namespace sv
