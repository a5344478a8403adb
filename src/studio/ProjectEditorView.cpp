#include "studio/ProjectEditorView.h"

#include <QVBoxLayout>

#include "codetree/ProjectEditor.h"
#include "codetree/ProjectView.h"
#include "studio/CommentEditorPane.h"
#include "studio/DockRenderer.h"
#include "studio/RenderedWidgets.h"
#include "studio/SplitterRenderer.h"
#include "studio/TreeRenderer.h"

namespace sv {

ProjectEditorView::ProjectEditorView(ProjectEditor* editor, QWidget* parent)
    : QWidget(parent), mEditor(editor) {
  RenderedWidgets::Register(editor, this);
  ProjectView* view = editor->ProjectViewControl();
  auto* treePane = new QWidget;
  RenderedWidgets::Register(view, treePane);
  auto* treeLayout = new QVBoxLayout(treePane);
  treeLayout->setContentsMargins(0, 0, 0, 0);
  treeLayout->setSpacing(0);
  mToolbar = new DockRenderer(view->dksProjectView(), treePane);
  mTree = new TreeRenderer(view->tvwProject(), treePane);
  treeLayout->addWidget(mToolbar);
  treeLayout->addWidget(mTree, 1);

  mComments = new CommentEditorPane(editor->CommentEditorControl());
  mSplit = new SplitterRenderer(editor->splitMain(), treePane, mComments, this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mSplit);
}

}  // namespace sv
