#include "comments/DesignerControl.h"

#include "comments/IContentDesigner.h"
#include "ui/HtmlEditor.h"

namespace sv {

DesignerControl::DesignerControl(QString name, std::shared_ptr<IContentDesigner> object,
                                 QObject* parent)
    : QObject(parent), mName(std::move(name)), mObject(std::move(object)) {
  setObjectName(mName);
}

DesignerControl::~DesignerControl() = default;

void DesignerControl::setVisible(bool value) {
  if (mVisible == value) return;
  mVisible = value;
  emit changed();
}

void DesignerControl::Move(int left, int top, int width, int height) {
  if (mLeft == left && mTop == top && mWidth == width && mHeight == height) return;
  mLeft = left;
  mTop = top;
  mWidth = width;
  mHeight = height;
  emit changed();
}

void DesignerControl::SetEditFocus() {
  if (HtmlEditor* editor = mObject ? mObject->HTMLEditor() : nullptr) editor->setFocused(true);
}

}  // namespace sv
