#include "studio/QtTipService.h"

#include "studio/RenderedWidgets.h"

namespace sv {

QtTipService::~QtTipService() {
  delete mPopup;
}

void QtTipService::ShowTip(const QString& name, QObject* near) {
  const QString text = mTexts.value(name);
  if (text.isEmpty()) return;
  HideTip();
  mForm.setTipText(text);
  QWidget* widget = RenderedWidgets::WidgetFor(near);
  // Parented to the window it explains, the popup goes away with it.
  mPopup = new TipPopupRenderer(&mForm, widget ? widget->window() : nullptr);
  mPopup->ShowNear(widget);
  mSeen.insert(name);
}

void QtTipService::HideTip() {
  delete mPopup;
}

const TipPopupRenderer* QtTipService::Popup() const {
  return mPopup && mPopup->isVisible() ? mPopup.data() : nullptr;
}

}  // namespace sv
