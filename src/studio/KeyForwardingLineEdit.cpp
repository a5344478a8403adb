#include "studio/KeyForwardingLineEdit.h"

#include <QKeyEvent>
#include <QPointer>

#include "studio/QtConvert.h"

namespace sv {

KeyForwardingLineEdit::KeyForwardingLineEdit(KeyHandler onKey, QWidget* parent)
    : QLineEdit(parent), mOnKey(std::move(onKey)) {}

void KeyForwardingLineEdit::keyPressEvent(QKeyEvent* event) {
  const QPointer<KeyForwardingLineEdit> self(this);
  if (const int code = QtConvert::ToKeyCode(event->key()))
    mOnKey(code, QtConvert::ToShiftMask(event->modifiers()));
  // The owner may have dropped this edit box meanwhile.
  if (self) QLineEdit::keyPressEvent(event);
}

}  // namespace sv
