#pragma once

#include <QPointer>
#include <QSplitter>

#include "ui/Splitter.h"

namespace sv {

// Draws a Splitter as a horizontal QSplitter over the two widgets that draw its panes. The
// splitter's Position is the first pane's share in percent; a person's drag of the handle
// becomes one userDrag when the handle is let go, so AfterDrag (which stores the split) runs once
// per drag, as it does for the classic control.
class SplitterRenderer : public QSplitter {
  Q_OBJECT

 public:
  SplitterRenderer(Splitter* splitter, QWidget* first, QWidget* second, QWidget* parent = nullptr);

  Splitter* Owner() const { return mSplitter; }

 protected:
  QSplitterHandle* createHandle() override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  friend class SplitterRendererHandle;
  void showPosition();
  void dragEnded();
  int firstPaneWidth(int total) const;

  QPointer<Splitter> mSplitter;
};

}  // namespace sv
