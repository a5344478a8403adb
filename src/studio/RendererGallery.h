#pragma once

#include <QWidget>

class QLabel;

namespace sv {

// A window of every renderer on hand-made state objects, so that a person can try them out:
// the last event any of them raised shows at the bottom.
class RendererGallery : public QWidget {
  Q_OBJECT

 public:
  explicit RendererGallery(QWidget* parent = nullptr);

 private:
  QWidget* makeTree();
  QWidget* makeDock();
  QWidget* makeExplorerBar();
  QWidget* makePropertyList();
  QWidget* makeChecks();
  void report(const QString& event);

  QLabel* mEvents;
};

}  // namespace sv
