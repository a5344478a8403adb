#pragma once

#include <memory>

namespace sv {

class CodeItem;
class SVContentFile;
class TaggedComments;

// Completes the comments of an item that were loaded lazily. A collection that is not yet
// consolidated holds only what the project file had for the item; the complete one adds, after
// those, the comments the content files hold for it. A comment whose Id is already present is
// the same comment and is not added twice.
class CommentPipe {
 public:
  // The content files the comments come from; without them the complete collection holds the
  // project file's comments only. Held weakly: the host owns the content file.
  void setContentFile(const std::shared_ptr<SVContentFile>& contentFile) {
    mContentFile = contentFile;
  }

  // A new, consolidated collection made by the model factory: every comment of `comments`
  // (tombstones too, so that a save still finds them), then the content files' comments for
  // the item, which from now on hang on it.
  std::shared_ptr<TaggedComments> Consolidate(const std::shared_ptr<CodeItem>& item,
                                              const TaggedComments& comments) const;

 private:
  std::weak_ptr<SVContentFile> mContentFile;
};

}  // namespace sv
