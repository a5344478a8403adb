#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

#include "html/HtmlDocument.h"

namespace sv {

// An HTML editing surface held as state: its document is an HtmlDocument, which stays the truth;
// the studio shows it in a web view and posts the author's edits back with userSetBodyHTML.
//
// Loading content from code (LoadDocument, setBodyHTML) raises no Change; what the author does
// (the user* actions) and the editing commands a host sends on the author's behalf
// (setSelectedHTML, InsertTable, the colours, ClickTool) raise Change when the document changed.
//
// The selection is a run of children of one node; start equal to end is a caret between two
// children. Until something is selected the caret stands at the end of the text: at the end of
// the body, inside its last block (a last paragraph, div or inline element takes what is typed).
class HtmlEditor : public QObject {
  Q_OBJECT

 public:
  explicit HtmlEditor(QObject* parent = nullptr);
  ~HtmlEditor() override;

  HtmlDocument& Document() { return mDocument; }
  const HtmlDocument& Document() const { return mDocument; }
  // Replaces the whole page, puts the caret at its end and raises DocumentComplete.
  void LoadDocument(const QString& html);
  QString DocumentHTML() const { return mDocument.documentHTML(); }
  // What relative links of the page are resolved against; for the renderer.
  const QString& BaseURL() const { return mBaseURL; }
  void setBaseURL(const QString& value);

  QString BodyHTML() const;
  // Replaces the body's content and puts the caret at its end; raises no event.
  void setBodyHTML(const QString& html);
  // The text of the body, without markup.
  QString BodyText() const;
  QString SelectedHTML() const;
  // Replaces the selection (or inserts at the caret) with the parsed HTML, then puts the caret
  // after it.
  void setSelectedHTML(const QString& html);

  // Selects children [start, end) of a node of this document; indexes are clamped to its
  // children. A node of another document raises InvalidCall.
  void Select(HtmlNode* container, int start, int end);
  // Selects one node.
  void SelectNode(HtmlNode* node);
  // Back to the caret at the end of the text.
  void CollapseToEnd();
  HtmlNode* SelectionContainer() const;
  int SelectionStart() const;
  int SelectionEnd() const;

  bool Visible() const { return mVisible; }
  void setVisible(bool value);
  bool Focused() const { return mFocused; }
  void setFocused(bool value);

  // Editing commands of the host's toolbar, on the selection.
  // A table of empty cells in place of the selection.
  void InsertTable(int rows, int columns);
  // Colours the selected text (a `font` element, as browsers write it); a caret does nothing.
  void SetForeColorByName(const QString& colour);
  // Puts a background colour behind the selected text (a `span` with a style).
  void SetFillColorByName(const QString& colour);
  // The colour of the text at the start of the selection, from the nearest element that sets
  // one; empty when none does.
  QString GetForeColorName() const;
  QString GetFillColorName() const;
  // A formatting tool by name, without regard to case: "Bold", "Italic", "Underline",
  // "StrikeThrough", "Superscript", "Subscript" wrap the selection; "InsertOrderedList" and
  // "InsertUnorderedList" put it in a list; "InsertHorizontalRule" inserts a rule. Answers
  // false for a tool it does not know or that has nothing to work on.
  bool ClickTool(const QString& tool);

  // A person types at the caret, replacing the selection; "\n" starts a new line (`<br>`).
  void userType(const QString& text);
  // A person's edit that leaves this body: the renderer posts the body of its view this way.
  void userSetBodyHTML(const QString& html);
  void userSelectAll();
  // Backspace deletes the selection or the character before the caret; Delete deletes the
  // selection. Answers whether the key changed the document.
  bool userPressKey(int keyCode);
  // A click on a command of the editor's own toolbar ("InsertCode", "InsertXML").
  void userClickCommand(const QString& key);

 signals:
  void Change();
  void CommandClick(const QString& key);
  void DocumentComplete();

  // For renderers: the document changed other than by userSetBodyHTML (whose HTML the view
  // shows already), or the editor's own state changed.
  void documentChanged();
  void stateChanged();

 private:
  struct Position {
    HtmlNode* container;
    int index;
  };
  struct Range {
    HtmlNode* container;
    int start;
    int end;
  };
  // Holds documentChanged back until the outermost batch ends, then raises it once.
  class Batch;

  Range selection() const;
  Position endOfText() const;
  void setCaret(HtmlNode* container, int index);
  // Removes the selected nodes and answers the caret where they stood.
  Position deleteSelection();
  bool deleteBackward(const Position& caret);
  void insertNodes(const std::vector<std::shared_ptr<HtmlNode>>& nodes);
  void insertText(const QString& text);
  // Puts the selected nodes into a new element of that tag; false for an empty selection.
  bool wrapSelection(const QString& tag, const QString& attribute, const QString& value);
  QString inheritedStyle(const QString& property, const QString& fontAttribute) const;
  // Runs an edit as one batch; raises Change and answers true when the document changed.
  bool edit(const std::function<void()>& body);

  HtmlDocument mDocument;
  QString mBaseURL;
  std::weak_ptr<HtmlNode> mSelectionContainer;
  int mSelectionStart = 0;
  int mSelectionEnd = 0;
  bool mVisible = true;
  bool mFocused = false;
  int mBatchDepth = 0;
  bool mBatchChanged = false;
  bool mQuiet = false;
};

}  // namespace sv
