#include "ui/Splitter.h"

#include <algorithm>

namespace sv {

Splitter::Splitter(QObject* parent) : QObject(parent) {}

void Splitter::setChild1(QObject* pane) {
  if (mChild1 == pane) return;
  mChild1 = pane;
  emit panesChanged();
}

void Splitter::setChild2(QObject* pane) {
  if (mChild2 == pane) return;
  mChild2 = pane;
  emit panesChanged();
}

void Splitter::setPosition(double percent) {
  const double clamped = std::clamp(percent, 0.0, 100.0);
  if (clamped == mPosition) return;
  mPosition = clamped;
  emit positionChanged(mPosition);
}

void Splitter::setVisible(bool value) {
  if (mVisible == value) return;
  mVisible = value;
  emit visibleChanged(value);
}

void Splitter::userDrag(double percent) {
  setPosition(percent);
  emit AfterDrag();
}

}  // namespace sv
