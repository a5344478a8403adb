#pragma once

#include <QWidget>

namespace sv {

class CommentEditorPane;
class DockRenderer;
class ProjectEditor;
class SplitterRenderer;
class TreeRenderer;

// Draws a ProjectEditor: the code tree with its toolbar on the left, the comment editor on the
// right, under the editor's splitter.
class ProjectEditorView : public QWidget {
  Q_OBJECT

 public:
  explicit ProjectEditorView(ProjectEditor* editor, QWidget* parent = nullptr);

  ProjectEditor* Editor() const { return mEditor; }
  TreeRenderer* Tree() const { return mTree; }
  DockRenderer* TreeToolbar() const { return mToolbar; }
  CommentEditorPane* Comments() const { return mComments; }
  SplitterRenderer* Split() const { return mSplit; }

 private:
  ProjectEditor* mEditor;  // outlives the view, which its host deletes first
  DockRenderer* mToolbar;
  TreeRenderer* mTree;
  CommentEditorPane* mComments;
  SplitterRenderer* mSplit;
};

}  // namespace sv
