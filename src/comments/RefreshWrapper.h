#pragma once

namespace sv {

class HtmlEditor;

// The host's command wrapper: it holds the host's formatting commands and the redraw of the
// host's window. Page switches lock the redraw so that the host does not repaint half-loaded
// pages; the host implements it and hands it over with CommentEditor::BindToWrapper.
class RefreshWrapper {
 public:
  virtual ~RefreshWrapper() = default;

  // Counted: each lock stops the host's repaint until it is unlocked again.
  virtual void lockrefresh() = 0;
  virtual void unlockrefresh() = 0;
  // Drops every lock at once and repaints.
  virtual void unlockrefreshabsolute() = 0;
  // Points the host's formatting commands at an editor; with `reset` they are cleared first,
  // and a null editor leaves them bound to nothing (disabled).
  virtual void BindTo(bool reset, HtmlEditor* editor) = 0;
};

}  // namespace sv
