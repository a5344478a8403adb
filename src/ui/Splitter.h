#pragma once

#include <QObject>
#include <QPointer>

namespace sv {

// A splitter held as state: two panes side by side and the bar between them. Position is the
// first pane's share of the width in percent. Setting it from code raises nothing, as with the
// classic control; a person's drag (userDrag) moves the bar and then raises AfterDrag. The panes
// are not owned: they belong to the control that placed them.
class Splitter : public QObject {
  Q_OBJECT

 public:
  explicit Splitter(QObject* parent = nullptr);

  // The first (left) and second (right) pane; null when none was placed.
  QObject* Child1() const { return mChild1; }
  void setChild1(QObject* pane);
  QObject* Child2() const { return mChild2; }
  void setChild2(QObject* pane);

  // In percent, 0 to 100; a value outside is brought to the nearer end.
  double Position() const { return mPosition; }
  void setPosition(double percent);
  bool Visible() const { return mVisible; }
  void setVisible(bool value);

  // A person drags the bar to a new place: the position moves, then AfterDrag.
  void userDrag(double percent);

 signals:
  void AfterDrag();

  // For renderers: the state changed.
  void positionChanged(double percent);
  void panesChanged();
  void visibleChanged(bool visible);

 private:
  QPointer<QObject> mChild1;
  QPointer<QObject> mChild2;
  double mPosition = 50;
  bool mVisible = true;
};

}  // namespace sv
