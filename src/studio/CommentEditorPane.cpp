#include "studio/CommentEditorPane.h"

#include <QLabel>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeWidgetItem>
#include <QVBoxLayout>

#include "comments/CommentEditor.h"
#include "comments/DesignerContainer.h"
#include "studio/CheckBoxRenderer.h"
#include "studio/DockRenderer.h"
#include "studio/ExplorerBarRenderer.h"
#include "studio/HtmlEditorRenderer.h"
#include "studio/PropertyListRenderer.h"
#include "studio/RenderedWidgets.h"
#include "ui/ExplorerBar.h"
#include "ui/ExplorerBarGroup.h"
#include "ui/ExplorerBarItem.h"
#include "ui/HtmlEditor.h"
#include "ui/PropertyList.h"
#include "widgets/EBCheckBoxes.h"

namespace sv {

namespace {
// The bar's share of a new pane, in pixels; the person may drag it.
constexpr int kBarWidth = 230;
}  // namespace

CommentEditorPane::CommentEditorPane(CommentEditor* editor, QWidget* parent)
    : QWidget(parent),
      mEditor(editor),
      mPages(new QStackedWidget(this)),
      mHint(new QLabel(tr("Select an item in the code tree to write its comments."), this)),
      mBar(new ExplorerBarRenderer(editor->eb(), this)) {
  RenderedWidgets::Register(editor, this);
  mHint->setAlignment(Qt::AlignCenter);
  mHint->setWordWrap(true);
  mHint->setEnabled(false);
  mPages->addWidget(mHint);

  auto* body = new QSplitter(Qt::Horizontal, this);
  body->setChildrenCollapsible(false);
  body->addWidget(mBar);
  body->addWidget(mPages);
  body->setStretchFactor(1, 1);
  body->setSizes({kBarWidth, kBarWidth * 3});

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(new DockRenderer(editor->DockCommentTypes(), this));
  layout->addWidget(body, 1);

  // Every change of what the editor shows passes one of these.
  connect(editor, &CommentEditor::ActiveDesignerChanged, this, &CommentEditorPane::sync);
  connect(editor->DesignerPanel(), &DesignerContainer::changed, this, &CommentEditorPane::sync);
  connect(editor->eb(), &ExplorerBar::SelChange, this, &CommentEditorPane::sync);
  connect(editor->eb(), &ExplorerBar::groupChanged, this, &CommentEditorPane::sync);
  connect(editor->eb(), &ExplorerBar::itemChanged, this, &CommentEditorPane::sync);
  connect(editor->eb(), &ExplorerBar::groupsChanged, this, &CommentEditorPane::sync);
  connect(editor->eb(), &ExplorerBar::barChanged, this, &CommentEditorPane::sync);
  connect(editor->eb(), &ExplorerBar::refreshed, this, &CommentEditorPane::sync);
  sync();
}

QWidget* CommentEditorPane::CurrentPage() const {
  QWidget* page = mPages->currentWidget();
  if (page == mHint) return mHint;
  QWidget* renderer = page->findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  return renderer ? renderer : page;
}

HtmlEditorRenderer* CommentEditorPane::RendererFor(const HtmlEditor* editor) const {
  return mEditorRenderers.value(editor);
}

QWidget* CommentEditorPane::wrap(QWidget* renderer) {
  // The renderer hides itself when its state object is hidden; the stack only picks the page.
  auto* page = new QWidget(mPages);
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(0, 0, 0, 0);
  renderer->setParent(page);
  layout->addWidget(renderer);
  mPages->addWidget(page);
  return page;
}

QWidget* CommentEditorPane::pageFor(HtmlEditor* editor) {
  if (QWidget* page = mEditorPages.value(editor)) return page;
  auto* renderer = new HtmlEditorRenderer(editor);
  QWidget* page = wrap(renderer);
  mEditorPages.insert(editor, page);
  mEditorRenderers.insert(editor, renderer);
  connect(editor, &QObject::destroyed, this, [this, editor, page] {
    mEditorPages.remove(editor);
    mEditorRenderers.remove(editor);
    page->deleteLater();
  });
  connect(editor, &HtmlEditor::stateChanged, this, &CommentEditorPane::sync);
  return page;
}

QWidget* CommentEditorPane::tagsListPage() {
  if (mTagsListPage) return mTagsListPage;
  PropertyList* list = mEditor->TagsList();
  mTagsList = new PropertyListRenderer(list);
  mTagsListPage = wrap(mTagsList);
  connect(list, &PropertyList::listChanged, this, &CommentEditorPane::sync);
  return mTagsListPage;
}

void CommentEditorPane::sync() {
  syncFlags();
  // Without an element the bar offers nothing; the hint takes the whole pane.
  mBar->setVisible(mEditor->CurrentCodeElement() && mEditor->eb()->Visible());
  QWidget* page = mHint;
  HtmlEditor* html = mEditor->GetActiveHTMLEditor();
  const bool pageShown = mEditor->DesignerContainerVisible() || mEditor->InPlaceEditorIsActive();
  if (mEditor->CurrentCodeElement() && html && pageShown && html->Visible())
    page = pageFor(html);
  else if (mEditor->CurrentCodeElement() && mEditor->TagsListExists() &&
           mEditor->TagsList()->Visible())
    page = tagsListPage();
  if (mPages->currentWidget() != page) mPages->setCurrentWidget(page);
}

void CommentEditorPane::syncFlags() {
  const ExplorerBarGroup* group = mEditor->eb()->FindGroup(QStringLiteral("flags"));
  const ExplorerBarItem* container =
      group ? group->FindItem(QStringLiteral("checkboxcontainer")) : nullptr;
  QTreeWidgetItem* row = container ? mBar->ItemFor(container) : nullptr;
  // The boxes are made when the editor first initialises.
  EBCheckBoxes* boxes = mEditor->CheckBoxes();
  if (!row || !boxes) return;
  // Box 0 is the boxes' hidden template and never carries a flag.
  std::vector<const CheckBox*> wanted;
  for (int index = 1; index < boxes->Count(); ++index) wanted.push_back(boxes->Item(index));
  if (mFlags && mBar->itemWidget(row, 0) == mFlags && wanted == mFlagBoxes) return;
  mFlagBoxes = wanted;
  // A pane whose row the bar took away lingers until the loop deletes it; it must not show.
  if (mFlags) {
    mFlags->hide();
    mFlags->deleteLater();
  }
  auto* pane = new QWidget;
  auto* layout = new QVBoxLayout(pane);
  layout->setContentsMargins(2, 2, 2, 2);
  layout->setSpacing(2);
  for (int index = 1; index < boxes->Count(); ++index)
    layout->addWidget(new CheckBoxRenderer(boxes->Item(index), pane));
  // The row is as tall as its boxes; the bar draws the pane over it.
  row->setSizeHint(0, QSize(0, pane->sizeHint().height()));
  mBar->setItemWidget(row, 0, pane);
  mFlags = pane;
}

}  // namespace sv
