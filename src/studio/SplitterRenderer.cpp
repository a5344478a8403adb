#include "studio/SplitterRenderer.h"

#include <QResizeEvent>
#include <cmath>

#include "studio/RenderedWidgets.h"

namespace sv {

// The handle tells its splitter when a person lets it go.
class SplitterRendererHandle : public QSplitterHandle {
 public:
  explicit SplitterRendererHandle(SplitterRenderer* parent)
      : QSplitterHandle(Qt::Horizontal, parent), mOwner(parent) {}

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    QSplitterHandle::mouseReleaseEvent(event);
    mOwner->dragEnded();
  }

 private:
  SplitterRenderer* mOwner;
};

SplitterRenderer::SplitterRenderer(Splitter* splitter, QWidget* first, QWidget* second,
                                   QWidget* parent)
    : QSplitter(Qt::Horizontal, parent), mSplitter(splitter) {
  addWidget(first);
  addWidget(second);
  setChildrenCollapsible(false);
  // The tree keeps its share when the window grows, as the percentage says.
  setStretchFactor(0, 0);
  setStretchFactor(1, 1);
  RenderedWidgets::Register(splitter, this);
  connect(splitter, &Splitter::positionChanged, this, &SplitterRenderer::showPosition);
  connect(splitter, &Splitter::visibleChanged, this,
          [this](bool visible) { RenderedWidgets::ApplyVisible(this, visible); });
  RenderedWidgets::ApplyVisible(this, splitter->Visible());
  showPosition();
}

int SplitterRenderer::firstPaneWidth(int total) const {
  return static_cast<int>(std::lround(total * mSplitter->Position() / 100.0));
}

void SplitterRenderer::showPosition() {
  if (!mSplitter) return;
  const int total = std::max(0, width() - handleWidth());
  const int first = firstPaneWidth(total);
  setSizes({first, total - first});
}

QSplitterHandle* SplitterRenderer::createHandle() {
  return new SplitterRendererHandle(this);
}

void SplitterRenderer::dragEnded() {
  if (!mSplitter) return;
  const QList<int> shown = sizes();
  const int total = shown.value(0) + shown.value(1);
  // Pixels are coarser than the stored percentage: a drag that ends where the bar already
  // stood moves nothing.
  if (total <= 0 || shown.value(0) == firstPaneWidth(total)) return;
  mSplitter->userDrag(100.0 * shown.value(0) / total);
}

void SplitterRenderer::resizeEvent(QResizeEvent* event) {
  QSplitter::resizeEvent(event);
  // The bar stays at its percentage whatever the width.
  showPosition();
}

}  // namespace sv
