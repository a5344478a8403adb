#include "ui/CheckBox.h"

#include "model/Error.h"
#include "ui/Keys.h"

namespace sv {

CheckBox::CheckBox(QObject* parent) : QObject(parent) {}

template <class T>
void CheckBox::write(T& member, const T& value) {
  if (member == value) return;
  member = value;
  emit changed();
}

void CheckBox::setValue(int value) {
  if (value != 0 && value != 1)
    Raise(ErrorNumber::InvalidCall, QStringLiteral("Invalid property value"));
  if (value == mValue) return;
  mValue = value;
  emit changed();
  emit Click();
}

void CheckBox::setCaption(const QString& value) {
  write(mCaption, value);
}

void CheckBox::setToolTipText(const QString& value) {
  write(mToolTipText, value);
}

void CheckBox::setEnabled(bool value) {
  write(mEnabled, value);
}

void CheckBox::setVisible(bool value) {
  write(mVisible, value);
}

void CheckBox::setBackColor(quint32 value) {
  write(mBackColor, value);
}

void CheckBox::setForeColor(quint32 value) {
  write(mForeColor, value);
}

void CheckBox::setFont(const QString& value) {
  write(mFont, value);
}

void CheckBox::setContainer(const QString& value) {
  write(mContainer, value);
}

void CheckBox::setHeight(int value) {
  write(mHeight, value);
}

void CheckBox::Move(int left, int top, int width, std::optional<int> height) {
  if (left == mLeft && top == mTop && width == mWidth && height.value_or(mHeight) == mHeight)
    return;
  mLeft = left;
  mTop = top;
  mWidth = width;
  mHeight = height.value_or(mHeight);
  emit changed();
}

void CheckBox::setHot(bool value) {
  write(mHot, value);
}

void CheckBox::setPressed(bool value) {
  write(mPressed, value);
}

void CheckBox::setFocused(bool value) {
  write(mFocused, value);
}

void CheckBox::Refresh() {
  ++mRefreshCount;
  emit refreshed();
}

bool CheckBox::userClick() {
  if (!mVisible || !mEnabled) return false;
  setFocused(true);
  setValue(mValue == 1 ? 0 : 1);
  return true;
}

bool CheckBox::userPressKey(int keyCode) {
  if (keyCode != KeyCode::Space) return false;
  return userClick();
}

}  // namespace sv
