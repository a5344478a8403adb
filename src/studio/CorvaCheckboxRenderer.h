#pragma once

#include <QCheckBox>
#include <QPointer>

#include "widgets/CorvaCheckbox.h"

namespace sv {

// Draws a CorvaCheckbox with a QCheckBox, repainting on each Redrawn, and passes the mouse
// (press, release, hover, leave), the focus and Space to the box's user* members. The box
// decides every state the widget shows.
class CorvaCheckboxRenderer : public QCheckBox {
  Q_OBJECT

 public:
  explicit CorvaCheckboxRenderer(CorvaCheckbox* box, QWidget* parent = nullptr);

  CorvaCheckbox* Box() const { return mBox; }

 protected:
  void nextCheckState() override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void showBox();

  QPointer<CorvaCheckbox> mBox;
};

}  // namespace sv
