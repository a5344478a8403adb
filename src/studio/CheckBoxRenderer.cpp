#include "studio/CheckBoxRenderer.h"

#include "studio/QtConvert.h"
#include "studio/RenderedWidgets.h"

namespace sv {

CheckBoxRenderer::CheckBoxRenderer(CheckBox* box, QWidget* parent) : QCheckBox(parent), mBox(box) {
  RenderedWidgets::Register(box, this);
  connect(box, &CheckBox::changed, this, &CheckBoxRenderer::showBox);
  connect(box, &CheckBox::refreshed, this, qOverload<>(&QWidget::update));
  showBox();
}

void CheckBoxRenderer::nextCheckState() {
  mBox->userClick();
  showBox();
}

void CheckBoxRenderer::showBox() {
  setText(mBox->Caption());
  setToolTip(mBox->ToolTipText());
  setChecked(mBox->Value() == 1);
  setEnabled(mBox->Enabled());
  setFont(QtConvert::ToQFont(mBox->Font()));
  RenderedWidgets::ApplyColours(this, mBox->BackColor(), mBox->ForeColor());
  RenderedWidgets::ApplyVisible(this, mBox->Visible());
}

}  // namespace sv
