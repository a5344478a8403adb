#include "studio/ListBoxRenderer.h"

#include <QGuiApplication>
#include <QSignalBlocker>

#include "studio/RenderedWidgets.h"

namespace sv {

ListBoxRenderer::ListBoxRenderer(ListBox* list, QWidget* parent)
    : QListWidget(parent), mList(list) {
  setSelectionMode(NoSelection);
  RenderedWidgets::Register(list, this);
  connect(list, &ListBox::itemsChanged, this, &ListBoxRenderer::showList);
  connect(this, &QListWidget::itemPressed, this, [this](QListWidgetItem* item) {
    if (QGuiApplication::mouseButtons() & Qt::LeftButton) mList->userClick(row(item));
  });
  connect(this, &QListWidget::itemDoubleClicked, this,
          [this](QListWidgetItem* item) { mList->userDoubleClick(row(item)); });
  showList();
}

void ListBoxRenderer::showList() {
  const QSignalBlocker blocker(this);
  while (count() > mList->ListCount()) delete takeItem(count() - 1);
  while (count() < mList->ListCount()) addItem(QString());
  const bool ticks = mList->Style() == ListStyle::CheckBox;
  for (int index = 0; index < count(); ++index) {
    QListWidgetItem* entry = item(index);
    entry->setText(mList->List(index));
    const bool selected = mList->Selected(index);
    // A check-box list shows its selection as ticks.
    entry->setData(Qt::CheckStateRole,
                   ticks ? QVariant(selected ? Qt::Checked : Qt::Unchecked) : QVariant());
    // Qt refuses setSelected in a view without selecting of its own; the model still takes it.
    selectionModel()->select(indexFromItem(entry), !ticks && selected
                                                       ? QItemSelectionModel::Select
                                                       : QItemSelectionModel::Deselect);
  }
  setCurrentRow(mList->ListIndex(), QItemSelectionModel::NoUpdate);
}

}  // namespace sv
