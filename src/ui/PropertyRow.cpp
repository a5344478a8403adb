#include "ui/PropertyRow.h"

#include "ui/PropertyList.h"

namespace sv {

void PropertyRow::changed() {
  emit mList->rowChanged(this);
}

int PropertyRow::Index() const {
  return static_cast<int>(mList->positionOf(this)) + 1;
}

void PropertyRow::setName(const QString& value) {
  if (value == mName) return;
  mName = value;
  changed();
}

void PropertyRow::setCaption(const QString& value) {
  if (value == mCaption) return;
  mCaption = value;
  changed();
}

void PropertyRow::setValue(const QVariant& value) {
  if (value == mValue) return;
  mValue = value;
  changed();
  emit mList->Change(this);
}

void PropertyRow::setDescription(const QString& value) {
  if (value == mDescription) return;
  mDescription = value;
  changed();
}

void PropertyRow::setForeColor(quint32 value) {
  if (value == mForeColor) return;
  mForeColor = value;
  changed();
}

void PropertyRow::setImage(const QString& value) {
  if (value == mImage) return;
  mImage = value;
  changed();
}

void PropertyRow::setIsAddRow(bool value) {
  if (value == mIsAddRow) return;
  mIsAddRow = value;
  changed();
}

void PropertyRow::setHidden(bool value) {
  if (value == mHidden) return;
  mHidden = value;
  changed();
}

void PropertyRow::setExpanded(bool value) {
  if (value == mExpanded) return;
  mExpanded = value;
  changed();
}

void PropertyRow::setEditorType(int value) {
  if (value == mEditorType) return;
  mEditorType = value;
  changed();
}

void PropertyRow::setHasButton(bool value) {
  if (value == mHasButton) return;
  mHasButton = value;
  changed();
}

void PropertyRow::AddListEntry(const QString& display, const QString& value) {
  mListEntries.push_back({display, value});
  changed();
}

void PropertyRow::ClearListEntries() {
  if (mListEntries.empty()) return;
  mListEntries.clear();
  changed();
}

bool PropertyRow::Selected() const {
  return mList->SelectedItem() == this;
}

void PropertyRow::setSelected(bool value) {
  if (value) {
    mList->setSelectedItem(this);
    return;
  }
  if (Selected()) mList->setSelectedItem(nullptr);
}

bool PropertyRow::IsShown() const {
  if (mHidden) return false;
  if (mKind == PropertyRowKind::Heading) return true;
  for (int index = Index() - 1; index >= 1; --index) {
    const PropertyRow* row = mList->Item(index);
    if (row->Kind() == PropertyRowKind::Heading) return row->Expanded() && !row->Hidden();
  }
  return true;
}

}  // namespace sv
