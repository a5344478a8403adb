#pragma once

#include <QString>
#include <memory>
#include <vector>

namespace sv {

class CodeItem;

// The application's comment clipboard. Copy takes a snapshot of an element's comments with the
// element's type name and qualified name; the snapshot outlives a change of element, of editor
// and of project, so that comments can be carried from one member to another of the same kind.
// Pasting makes new comments (new Ids, from the model factory) on the target.
class UIHelpers {
 public:
  // The one clipboard of the process, made on first use.
  static UIHelpers& Shared();

  // Replaces the clipboard with the element's comments (tombstones left out). Without an
  // element there is nothing to copy and the clipboard keeps what it holds.
  void CopyComments(const std::shared_ptr<CodeItem>& element);
  // Adds a copy of every comment on the clipboard to the element; answers how many were added.
  // An element without a comment collection takes none.
  int PasteComments(const std::shared_ptr<CodeItem>& element);
  bool HasCopiedComments() const { return !mComments.empty(); }
  // The run-time type name of the element the comments came from.
  const QString& CopiedItemTypeName() const { return mTypeName; }
  const QString& CopiedItemQualifiedName() const { return mQualifiedName; }
  // Empties the clipboard.
  void ClearCopiedComments();

 private:
  // What a pasted comment takes over from the copied one.
  struct CopiedComment {
    QString tagIdentifier;
    QString text;
    QString xmlCommentType;
    bool isHidden = false;
    bool qualified = false;  // the comment carried its element's name
  };

  std::vector<CopiedComment> mComments;
  QString mTypeName;
  QString mQualifiedName;
};

}  // namespace sv
