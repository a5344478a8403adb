#pragma once

#include <QString>
#include <memory>

namespace sv {

class CodeItem;
class HtmlEditor;
class TaggedCommentDef;

// The in-place page editor as CommentEditor sees it: the rendered page of a layout, on which
// the author edits the element's comments, and the element's description that follows its
// general comments. CommentEditor decides which page is on display and when; an implementation
// of this class shows the page. The base class shows nothing, which leaves the designers and
// the tag list as the editors until the page editor is hosted.
class CommentPages {
 public:
  virtual ~CommentPages();

  // There is no element: hide the page editor and its child windows.
  virtual void HideAll() {}
  // The tag list comes forward: hide the page editor.
  virtual void ShowList() {}
  // Shows the page editor for a layout of the element.
  virtual void ShowLayout(const std::shared_ptr<CodeItem>&, const QString&) {}
  // A tag's designer comes forward: hide the page editor and its child windows.
  virtual void ShowTag(const std::shared_ptr<TaggedCommentDef>&) {}
  // Moves the focus to the page editor (the bar key of its layout).
  virtual void SetEditFocus(const QString&) {}
  // The page editor's HTML editor; null without one.
  virtual HtmlEditor* Editor() const { return nullptr; }
  // Brings an element's description in line with its general comments; `loading` is true when
  // the element has just been handed to the editor.
  virtual void UpdateDescription(const std::shared_ptr<CodeItem>&, bool) {}
};

}  // namespace sv
