#include "studio/HtmlEditorRenderer.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextCursor>
#include <QTextDocumentFragment>

#include "studio/RenderedWidgets.h"
#include "studio/SimpleHtml.h"

namespace sv {

HtmlEditorRenderer::HtmlEditorRenderer(HtmlEditor* editor, QWidget* parent)
    : QTextEdit(parent), mEditor(editor) {
  setAcceptRichText(true);
  setTabChangesFocus(true);
  RenderedWidgets::Register(editor, this);
  connect(editor, &HtmlEditor::documentChanged, this, &HtmlEditorRenderer::showDocument);
  connect(editor, &HtmlEditor::stateChanged, this, &HtmlEditorRenderer::showState);
  connect(this, &QTextEdit::textChanged, this, &HtmlEditorRenderer::postEdit);
  showDocument();
  showState();
}

void HtmlEditorRenderer::showDocument() {
  if (!mEditor) return;
  mShowing = true;
  setHtml(mEditor->BodyHTML());
  // The editor's caret stands at the end of what it loaded.
  moveCursor(QTextCursor::End);
  mShowing = false;
}

void HtmlEditorRenderer::showState() {
  if (!mEditor) return;
  RenderedWidgets::ApplyVisible(this, mEditor->Visible());
  if (mEditor->Focused() && !hasFocus() && isVisible()) setFocus();
}

void HtmlEditorRenderer::postEdit() {
  if (mShowing || !mEditor) return;
  const QString html = SimpleHtml::FromDocument(*document());
  if (html == mEditor->BodyHTML()) return;
  mEditor->userSetBodyHTML(html);
}

void HtmlEditorRenderer::toggleFormat(int key) {
  QTextCharFormat format;
  const QTextCharFormat current = currentCharFormat();
  if (key == Qt::Key_B)
    format.setFontWeight(current.fontWeight() >= QFont::DemiBold ? QFont::Normal : QFont::Bold);
  if (key == Qt::Key_I) format.setFontItalic(!current.fontItalic());
  if (key == Qt::Key_U) format.setFontUnderline(!current.fontUnderline());
  mergeCurrentCharFormat(format);
}

void HtmlEditorRenderer::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (event->modifiers() == Qt::ControlModifier &&
      (key == Qt::Key_B || key == Qt::Key_I || key == Qt::Key_U)) {
    toggleFormat(key);
    event->accept();
    return;
  }
  QTextEdit::keyPressEvent(event);
}

void HtmlEditorRenderer::insertFromMimeData(const QMimeData* source) {
  if (!source->hasHtml()) {
    QTextEdit::insertFromMimeData(source);
    return;
  }
  // Through the simple form, so that a page pasted from a browser brings no styles along.
  QTextDocument pasted;
  pasted.setHtml(source->html());
  textCursor().insertFragment(QTextDocumentFragment::fromHtml(SimpleHtml::FromDocument(pasted)));
}

void HtmlEditorRenderer::focusInEvent(QFocusEvent* event) {
  QTextEdit::focusInEvent(event);
  if (mEditor && !mEditor->Focused()) mEditor->setFocused(true);
}

void HtmlEditorRenderer::focusOutEvent(QFocusEvent* event) {
  QTextEdit::focusOutEvent(event);
  if (mEditor && mEditor->Focused()) mEditor->setFocused(false);
}

}  // namespace sv
