#pragma once

#include <QString>
#include <memory>

#include "model/ModelTypes.h"

namespace sv {

class TaggedCommentDef;

// Change states of a comment.
namespace CommentStatus {
inline constexpr long Unchanged = 0;
inline constexpr long Changed = 1;
inline constexpr long New = 2;
inline constexpr long Deleted = 3;
}  // namespace CommentStatus

// One comment on one code item.
class TaggedComment {
 public:
  virtual ~TaggedComment() = default;

  virtual QString TagIdentifier() const = 0;
  virtual void setTagIdentifier(const QString& value) = 0;
  virtual QString Qualifier() const = 0;
  virtual void setQualifier(const QString& value) = 0;
  virtual QString ParsedText() const = 0;
  virtual void setParsedText(const QString& value) = 0;
  virtual long Status() const = 0;
  virtual void setStatus(long value) = 0;
  virtual QString Id() const = 0;
  virtual bool IsHidden() const = 0;
  virtual void setIsHidden(bool value) = 0;
  virtual QString XMLCommentType() const = 0;
  virtual void setXMLCommentType(const QString& value) = 0;
  virtual QString Text() const = 0;
  virtual void setText(const QString& value) = 0;
  // The code element the comment is attached to; the comment does not keep it alive.
  virtual std::shared_ptr<CodeItem> Item() const = 0;
  virtual void setItem(const std::shared_ptr<CodeItem>& item) = 0;
  // The definition of the comment's tag; null for a tag without a definition.
  virtual std::shared_ptr<sv::TaggedCommentDef> TaggedCommentDef() const = 0;
};

}  // namespace sv
