#include "ui/DockBand.h"

#include "ui/Dock.h"

namespace sv {

void DockBand::changed() {
  emit mDock->bandChanged(this);
}

void DockBand::setCaption(const QString& value) {
  if (value == mCaption) return;
  mCaption = value;
  changed();
}

void DockBand::setVisible(bool value) {
  if (value == mVisible) return;
  mVisible = value;
  changed();
}

}  // namespace sv
