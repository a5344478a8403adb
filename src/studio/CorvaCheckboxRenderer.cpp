#include "studio/CorvaCheckboxRenderer.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "studio/QtConvert.h"
#include "studio/RenderedWidgets.h"

namespace sv {

CorvaCheckboxRenderer::CorvaCheckboxRenderer(CorvaCheckbox* box, QWidget* parent)
    : QCheckBox(parent), mBox(box) {
  setAttribute(Qt::WA_Hover);
  RenderedWidgets::Register(box, this);
  connect(box, &CorvaCheckbox::Redrawn, this, &CorvaCheckboxRenderer::showBox);
  showBox();
}

void CorvaCheckboxRenderer::showBox() {
  setText(mBox->Caption());
  setChecked(mBox->Value() == 1);
  setEnabled(mBox->Enabled());
  setFont(QtConvert::ToQFont(mBox->Font()));
  RenderedWidgets::ApplyColours(this, mBox->BackColor(), mBox->ForeColor());
  update();
}

void CorvaCheckboxRenderer::nextCheckState() {
  // The press and release have reached the box already; this is the click itself.
  mBox->RaiseClick();
  showBox();
}

void CorvaCheckboxRenderer::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) mBox->userMouseDown();
  QCheckBox::mousePressEvent(event);
}

void CorvaCheckboxRenderer::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) mBox->userMouseUp();
  QCheckBox::mouseReleaseEvent(event);
}

void CorvaCheckboxRenderer::keyPressEvent(QKeyEvent* event) {
  // Space clicks on release, through the box.
  if (event->key() == Qt::Key_Space) {
    event->accept();
    return;
  }
  QCheckBox::keyPressEvent(event);
}

void CorvaCheckboxRenderer::keyReleaseEvent(QKeyEvent* event) {
  const int code = QtConvert::ToKeyCode(event->key());
  if (code == 0 || event->isAutoRepeat()) {
    QCheckBox::keyReleaseEvent(event);
    return;
  }
  mBox->userPressKey(code, QtConvert::ToShiftMask(event->modifiers()));
  event->accept();
}

void CorvaCheckboxRenderer::enterEvent(QEnterEvent* event) {
  mBox->userHover();
  QCheckBox::enterEvent(event);
}

void CorvaCheckboxRenderer::leaveEvent(QEvent* event) {
  mBox->userLeave();
  QCheckBox::leaveEvent(event);
}

void CorvaCheckboxRenderer::focusInEvent(QFocusEvent* event) {
  mBox->userFocusIn();
  QCheckBox::focusInEvent(event);
}

void CorvaCheckboxRenderer::focusOutEvent(QFocusEvent* event) {
  mBox->userFocusOut();
  QCheckBox::focusOutEvent(event);
}

}  // namespace sv
