#pragma once

#include <QCheckBox>
#include <QPointer>

#include "ui/CheckBox.h"

namespace sv {

// Draws a CheckBox with a QCheckBox. A click or Space reaches the box's userClick, which flips
// its value and raises Click; the widget then shows the value the box holds.
class CheckBoxRenderer : public QCheckBox {
  Q_OBJECT

 public:
  explicit CheckBoxRenderer(CheckBox* box, QWidget* parent = nullptr);

  CheckBox* Box() const { return mBox; }

 protected:
  // Qt's own flip is replaced by the box's.
  void nextCheckState() override;

 private:
  void showBox();

  QPointer<CheckBox> mBox;
};

}  // namespace sv
