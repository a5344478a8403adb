#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"

namespace sv {

class DocType;

// A content file: the comments of one root item kept apart from the project file.
class CommentFile {
 public:
  virtual ~CommentFile() = default;

  virtual QString FileName() const = 0;
  virtual QString RootItemName() const = 0;
  virtual std::shared_ptr<sv::DocType> DocType() const = 0;
};

using CommentFiles = KeyedCollection<std::shared_ptr<CommentFile>>;

}  // namespace sv
