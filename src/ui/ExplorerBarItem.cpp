#include "ui/ExplorerBarItem.h"

#include "ui/ExplorerBar.h"
#include "ui/ExplorerBarGroup.h"

namespace sv {

ExplorerBar* ExplorerBarItem::Bar() const {
  return mGroup->Bar();
}

void ExplorerBarItem::changed() {
  emit Bar()->itemChanged(this);
}

void ExplorerBarItem::setCaption(const QString& value) {
  if (value == mCaption) return;
  mCaption = value;
  changed();
}

void ExplorerBarItem::setToolTip(const QString& value) {
  if (value == mToolTip) return;
  mToolTip = value;
  changed();
}

void ExplorerBarItem::setImage(const QString& value) {
  if (value == mImage) return;
  mImage = value;
  changed();
}

void ExplorerBarItem::setVisible(bool value) {
  if (value == mVisible) return;
  mVisible = value;
  changed();
}

void ExplorerBarItem::setEnabled(bool value) {
  if (value == mEnabled) return;
  mEnabled = value;
  changed();
}

void ExplorerBarItem::setTicked(bool value) {
  if (value == mTicked) return;
  mTicked = value;
  changed();
}

void ExplorerBarItem::setControlName(const QString& value) {
  if (value == mControlName) return;
  mControlName = value;
  changed();
}

void ExplorerBarItem::setHeight(int value) {
  if (value == mHeight) return;
  mHeight = value;
  changed();
}

void ExplorerBarItem::setClient(const ExplorerBarClient& value) {
  if (value == mClient) return;
  mClient = value;
  changed();
}

bool ExplorerBarItem::Selected() const {
  return Bar()->SelectedItem() == this;
}

void ExplorerBarItem::setSelected(bool value) {
  if (value) {
    Bar()->setSelectedItem(this);
    return;
  }
  if (Selected()) Bar()->setSelectedItem(nullptr);
}

bool ExplorerBarItem::IsAvailable() const {
  return mVisible && mEnabled && mGroup->Visible() && mGroup->Enabled() && mGroup->Expanded() &&
         Bar()->Visible() && Bar()->Enabled();
}

}  // namespace sv
