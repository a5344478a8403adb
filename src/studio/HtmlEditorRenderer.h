#pragma once

#include <QPointer>
#include <QTextEdit>

#include "ui/HtmlEditor.h"

namespace sv {

// Draws an HtmlEditor as a rich-text view of its body. What a person types, pastes or formats
// there (Ctrl+B, Ctrl+I, Ctrl+U) is posted back at once as simple HTML through userSetBodyHTML,
// so the editor's document, which is the truth, never lags behind the view. Content the editor
// loads from code is shown as it arrives; the editor's Visible and Focused follow the widget.
class HtmlEditorRenderer : public QTextEdit {
  Q_OBJECT

 public:
  explicit HtmlEditorRenderer(HtmlEditor* editor, QWidget* parent = nullptr);

  HtmlEditor* Editor() const { return mEditor; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  // Pasted rich text keeps only what the stored HTML can say.
  void insertFromMimeData(const QMimeData* source) override;

 private:
  void showDocument();
  void showState();
  void postEdit();
  void toggleFormat(int key);

  QPointer<HtmlEditor> mEditor;
  bool mShowing = false;
};

}  // namespace sv
