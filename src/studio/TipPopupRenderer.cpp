#include "studio/TipPopupRenderer.h"

#include <QCursor>

#include "studio/QtConvert.h"
#include "studio/RenderedWidgets.h"
#include "ui/SystemColors.h"

namespace sv {

TipPopupRenderer::TipPopupRenderer(frmTipPopup* form, QWidget* parent)
    : QLabel(parent, Qt::ToolTip), mForm(form) {
  setAutoFillBackground(true);
  RenderedWidgets::ApplyColours(this, SystemColor::InfoBackground, SystemColor::InfoText);
  setFrameShape(QFrame::Box);
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  connect(form, &frmTipPopup::changed, this, &TipPopupRenderer::showForm);
  showForm();
}

void TipPopupRenderer::showForm() {
  const frmTipPopup::Label& label = mForm->TipLabel();
  setFont(QtConvert::ToQFont(label.Font));
  setText(label.Caption);
  setContentsMargins(label.Left, label.Top, label.Left, label.Top);
  setFixedSize(mForm->Width(), mForm->Height());
}

void TipPopupRenderer::ShowNear(const QWidget* near) {
  const QPoint place = near ? near->mapToGlobal(QPoint(0, near->height())) : QCursor::pos();
  move(place);
  show();
  raise();
}

}  // namespace sv
