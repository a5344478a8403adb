#pragma once

#include <QLabel>
#include <QPointer>

#include "widgets/frmTipPopup.h"

namespace sv {

// Draws a frmTipPopup as a small tool-tip window at the size the form worked out.
class TipPopupRenderer : public QLabel {
  Q_OBJECT

 public:
  explicit TipPopupRenderer(frmTipPopup* form, QWidget* parent = nullptr);

  // Shows the tip just below `near`, or at the cursor when there is no widget.
  void ShowNear(const QWidget* near);

 private:
  void showForm();

  QPointer<frmTipPopup> mForm;
};

}  // namespace sv
