#pragma once

#include <QHash>
#include <QPointer>
#include <QWidget>
#include <vector>

class QLabel;
class QStackedWidget;

namespace sv {

class CheckBox;
class CommentEditor;
class ExplorerBarRenderer;
class HtmlEditor;
class HtmlEditorRenderer;
class PropertyListRenderer;

// Draws a CommentEditor: its toolbar of comment types on top, the explorer bar (title, pages,
// flags, with the flag boxes in the flags group's pane) on the left, and on the right whichever
// page the editor
// shows: the HTML editor of the active designer (or of the page editor), the tag list, or a
// hint while there is no element. The editor decides; the pane follows its ActiveDesignerChanged,
// the designer panel and the bar, and makes the renderer of a page the first time it is shown.
class CommentEditorPane : public QWidget {
  Q_OBJECT

 public:
  explicit CommentEditorPane(CommentEditor* editor, QWidget* parent = nullptr);

  CommentEditor* Editor() const { return mEditor; }
  // The page on display: a renderer, or the hint label.
  QWidget* CurrentPage() const;
  // Null until the editor's HTML editor or tag list has been shown.
  HtmlEditorRenderer* RendererFor(const HtmlEditor* editor) const;
  PropertyListRenderer* TagsListRenderer() const { return mTagsList; }
  ExplorerBarRenderer* Bar() const { return mBar; }

 private:
  void sync();
  void syncFlags();
  QWidget* pageFor(HtmlEditor* editor);
  QWidget* tagsListPage();
  QWidget* wrap(QWidget* renderer);

  CommentEditor* mEditor;  // outlives the pane, which its host deletes first
  QStackedWidget* mPages;
  QLabel* mHint;
  ExplorerBarRenderer* mBar;
  // The pane of flag boxes goes with the bar's row it stands in, when the bar redraws a group.
  QPointer<QWidget> mFlags;
  std::vector<const CheckBox*> mFlagBoxes;
  PropertyListRenderer* mTagsList = nullptr;
  QWidget* mTagsListPage = nullptr;
  QHash<const HtmlEditor*, QWidget*> mEditorPages;
  QHash<const HtmlEditor*, HtmlEditorRenderer*> mEditorRenderers;
};

}  // namespace sv
