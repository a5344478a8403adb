#include "ui/DockCommand.h"

#include <algorithm>

#include "model/Error.h"
#include "ui/Dock.h"

namespace sv {

DockCommand::DockCommand(Dock* dock, const QString& key, DockCommandType type,
                         const QString& caption)
    : mDock(dock), mKey(key), mType(type), mCaption(caption) {}

void DockCommand::changed() {
  emit mDock->commandChanged(this);
}

void DockCommand::setCaption(const QString& value) {
  if (value == mCaption) return;
  mCaption = value;
  changed();
}

void DockCommand::setToolTipText(const QString& value) {
  if (value == mToolTipText) return;
  mToolTipText = value;
  changed();
}

void DockCommand::setImage(const QString& value) {
  if (value == mImage) return;
  mImage = value;
  changed();
}

void DockCommand::setEnabled(bool value) {
  if (value == mEnabled) return;
  mEnabled = value;
  changed();
}

void DockCommand::setVisible(bool value) {
  if (value == mVisible) return;
  mVisible = value;
  changed();
}

void DockCommand::setBeginGroup(bool value) {
  if (value == mBeginGroup) return;
  mBeginGroup = value;
  changed();
}

void DockCommand::setValue(int value) {
  if (value == mValue) return;
  mValue = value;
  changed();
}

void DockCommand::setText(const QString& value) {
  if (value == mText) return;
  mText = value;
  changed();
}

void DockCommand::setCurrentEntry(DockCommand* entry) {
  if (entry && std::find(mEntries.begin(), mEntries.end(), entry) == mEntries.end())
    Raise(ErrorNumber::InvalidCall, QStringLiteral("The command is not an entry of this popup"));
  if (entry == mCurrentEntry) return;
  mCurrentEntry = entry;
  changed();
}

}  // namespace sv
