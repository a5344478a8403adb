#include "comments/DesignerContainer.h"

#include <algorithm>

#include "comments/DesignerControl.h"
#include "model/Error.h"

namespace sv {

DesignerContainer::DesignerContainer(QObject* parent) : QObject(parent) {}

DesignerContainer::~DesignerContainer() = default;

void DesignerContainer::setVisible(bool value) {
  if (mVisible == value) return;
  mVisible = value;
  emit changed();
}

void DesignerContainer::setContainer(const QString& value) {
  if (mContainer == value) return;
  mContainer = value;
  emit changed();
}

void DesignerContainer::setSize(int width, int height) {
  if (mWidth == width && mHeight == height) return;
  mWidth = width;
  mHeight = height;
  emit changed();
  emit Resize();
}

DesignerControl* DesignerContainer::Add(const QString& name,
                                        std::shared_ptr<IContentDesigner> object) {
  if (Find(name))
    Raise(ErrorNumber::DuplicateKey,
          QStringLiteral("A control named \"%1\" is already on the editor").arg(name));
  auto* control = new DesignerControl(name, std::move(object), this);
  mControls.push_back(control);
  emit changed();
  return control;
}

DesignerControl* DesignerContainer::Find(const QString& name) const {
  const auto it = std::find_if(mControls.begin(), mControls.end(), [&](const DesignerControl* c) {
    return c->Name().compare(name, Qt::CaseInsensitive) == 0;
  });
  return it == mControls.end() ? nullptr : *it;
}

void DesignerContainer::Remove(const QString& name) {
  DesignerControl* control = Find(name);
  if (!control)
    Raise(ErrorNumber::SubscriptOutOfRange,
          QStringLiteral("There is no control named \"%1\" on the editor").arg(name));
  std::erase(mControls, control);
  delete control;
  emit changed();
}

void DesignerContainer::BringToFront(DesignerControl* control) {
  const auto it = std::find(mControls.begin(), mControls.end(), control);
  if (it == mControls.end() || control == Front()) return;
  mControls.erase(it);
  mControls.push_back(control);
  emit changed();
}

}  // namespace sv
