#pragma once

#include <QHash>
#include <QLineEdit>
#include <QPointer>
#include <QWidget>
#include <vector>

#include "ui/PropertyList.h"

class QLabel;
class QTextBrowser;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace sv {

// Draws a PropertyList: rows in a two-column tree with heading rows as openable parents, the
// list's buttons and the row's own button under it, the selected row's description below, and
// the open cell as a line edit in the value column. Selecting, opening headings, clicking the
// value of the selected row (or F2), typing in the cell, Return and Escape, and the buttons
// become the list's user* actions and BeginEdit.
class PropertyListRenderer : public QWidget {
  Q_OBJECT

 public:
  explicit PropertyListRenderer(PropertyList* list, QWidget* parent = nullptr);

  PropertyList* List() const { return mList; }
  QTreeWidget* RowsView() const { return mRows; }
  QTreeWidgetItem* ItemFor(const PropertyRow* row) const { return mItems.value(row); }
  // The open cell, or null.
  QLineEdit* Editor() const { return mEditor; }
  // The list button of that key, or the row's own button for an empty key.
  QToolButton* ButtonFor(const QString& key) const;
  QTextBrowser* Description() const { return mDescription; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void rebuild();
  void rebuildButtons();
  void showRow(const PropertyRow* row);
  void showList();
  void showEdit();
  void currentChanged(QTreeWidgetItem* item);
  void itemPressed(QTreeWidgetItem* item, int column);
  void headingOpened(QTreeWidgetItem* item, bool open);
  PropertyRow* rowOf(const QTreeWidgetItem* item) const { return mRowOf.value(item); }

  QPointer<PropertyList> mList;
  QLabel* mMessage;
  QTreeWidget* mRows;
  QWidget* mButtonBar;
  QToolButton* mRowButton;
  std::vector<QToolButton*> mButtons;
  QTextBrowser* mDescription;
  QPointer<QLineEdit> mEditor;
  const PropertyRow* mEditorRow = nullptr;
  QHash<const PropertyRow*, QTreeWidgetItem*> mItems;
  QHash<const QTreeWidgetItem*, PropertyRow*> mRowOf;
};

}  // namespace sv
