#pragma once

#include <QString>
#include <QStringList>
#include <memory>

namespace sv {

class CodeItem;
class TaggedCommentDef;

// The pages that edit a comment's text in place of the tag list: the designers of page tags and
// the in-place page editor. CommentEditor decides which page is on display and when; an
// implementation of this class creates and shows the page. The base class shows nothing, which
// leaves the tag list as the only editor until designers are hosted.
class CommentPages {
 public:
  virtual ~CommentPages();

  // A designer is on display.
  virtual bool HasActiveDesigner() const { return false; }
  // Writes what was typed in the active designer into its comment.
  virtual void CommitEdit() {}
  // Deactivates the designer on display, if any.
  virtual void HideActiveDesigner() {}
  // There is no element: hide the page editor and the designers' child windows.
  virtual void HideAll() {}
  // The tag list comes forward: hide the page editor and the HTML designer's child windows.
  virtual void ShowList() {}
  // Shows the in-place page editor for a layout of the element.
  virtual void ShowLayout(const std::shared_ptr<CodeItem>&, const QString&) {}
  // Shows the designer of a page tag, creating it on first use.
  virtual void ShowTag(const std::shared_ptr<TaggedCommentDef>&) {}
  // The element's kind changed: run-time controls of these names are to go.
  virtual void RemoveControls(const QStringList&) {}
  // Moves the focus to the page of a bar key.
  virtual void SetEditFocus(const QString&) {}
  // Brings an element's description in line with its general comments; `loading` is true when
  // the element has just been handed to the editor.
  virtual void UpdateDescription(const std::shared_ptr<CodeItem>&, bool) {}
};

}  // namespace sv
