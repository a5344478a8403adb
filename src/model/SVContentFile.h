#pragma once

#include <QString>
#include <memory>

#include "model/ModelTypes.h"

namespace sv {

// The content files of a project as an editor meets them while the tree fills: when a node's
// children are fetched, the provider's content filter for the item says which comment files
// concern it, and the content file attaches them. An item whose comments were not yet merged
// with those files (TaggedComments::Consolidated false) gets them from CommentsFor.
class SVContentFile {
 public:
  virtual ~SVContentFile() = default;

  // Attaches the comment files that relevantContentFilter names for item.
  virtual void ItemPopulated(const std::shared_ptr<CodeItem>& item,
                             const QString& relevantContentFilter) = 0;
  // The comments the attached files hold for item, in file order; empty when none.
  virtual CommentCollection CommentsFor(const CodeItem& item) const = 0;
};

}  // namespace sv
