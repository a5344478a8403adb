#pragma once

#include <QListWidget>
#include <QPointer>

#include "ui/ListBox.h"

namespace sv {

// Draws a ListBox with a QListWidget: its entries, ticks in a check-box list, the selection and
// the focused entry. Qt's own selecting is off: a click reaches the list's userClick, which
// selects, flips or ticks as the list's style says, and the widget shows the outcome.
class ListBoxRenderer : public QListWidget {
  Q_OBJECT

 public:
  explicit ListBoxRenderer(ListBox* list, QWidget* parent = nullptr);

  ListBox* List() const { return mList; }

 private:
  void showList();

  QPointer<ListBox> mList;
};

}  // namespace sv
