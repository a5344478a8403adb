#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>
#include <memory>
#include <vector>

#include "ui/PropertyRow.h"
#include "ui/RedrawSwitch.h"

namespace sv {

struct PropertyColumn {
  QString Key;
  QString Caption;
};

// A button drawn on the selected row, the same for every row; the host shows or hides it as
// the selection moves.
struct PropertyListButton {
  QString Key;
  int Image = 0;  // resource number of its picture
  QString ToolTip;
  bool Visible = true;
};

// A list of named values in rows, grouped under heading rows, with a description pane and a
// cell editor, held as state. Row keys are unique and compare without regard to case; an empty
// key is allowed and indexes nothing. Rows are numbered from 1.
//
// The value cell of the selected row can be edited: BeginEdit raises BeforeEdit (which may
// cancel); CommitEdit raises AfterEdit with the typed value (which the handler may change or
// cancel) and then writes it to the row, raising Change while the list is still in edit mode.
class PropertyList : public QObject {
  Q_OBJECT

 public:
  explicit PropertyList(QObject* parent = nullptr);
  ~PropertyList() override;

  // Adds a row at the end; a key held by another row raises DuplicateKey.
  PropertyRow* Add(const QString& key, const QString& caption = {},
                   PropertyRowKind kind = PropertyRowKind::Item);
  // Removes a row; raises SubscriptOutOfRange when it is missing. Removing the selected row
  // clears the selection, and removing the edited row drops its edit, both without an event.
  void Remove(const QString& key);
  void Remove(int index);
  void Clear();
  int Count() const { return static_cast<int>(mRows.size()); }
  bool Exists(const QString& key) const { return Find(key) != nullptr; }
  PropertyRow* Find(const QString& key) const;
  // Missing keys and indexes raise SubscriptOutOfRange.
  PropertyRow* Item(const QString& key) const;
  PropertyRow* Item(int index) const;
  std::vector<PropertyRow*> Rows() const;

  PropertyRow* SelectedItem() const { return mSelected; }
  // Selecting from code raises nothing; an edit in progress on another row is dropped.
  void setSelectedItem(PropertyRow* row);

  const std::vector<PropertyColumn>& Columns() const { return mColumns; }
  void setColumns(std::vector<PropertyColumn> columns);
  // Text shown over the rows while the list is being filled; empty for none.
  const QString& Text() const { return mText; }
  void setText(const QString& value);
  // Text shown while the list has no rows.
  const QString& EmptyMessage() const { return mEmptyMessage; }
  void setEmptyMessage(const QString& value);
  bool Enabled() const { return mEnabled; }
  void setEnabled(bool value);
  bool Visible() const { return mVisible; }
  void setVisible(bool value);

  bool DescriptionVisible() const { return mDescriptionVisible; }
  void setDescriptionVisible(bool value);
  // In pixels.
  int DescriptionHeight() const { return mDescriptionHeight; }
  void setDescriptionHeight(int value);

  // A key already taken raises DuplicateKey.
  void AddButton(const QString& key, int image, const QString& toolTip);
  // Missing keys raise SubscriptOutOfRange.
  const PropertyListButton& Button(const QString& key) const;
  void setButtonVisible(const QString& key, bool visible);
  const std::vector<PropertyListButton>& Buttons() const { return mButtons; }

  bool EditMode() const { return mEditing != nullptr; }
  PropertyRow* EditingRow() const { return mEditing; }
  // The text in the open cell editor.
  const QString& EditText() const { return mEditText; }
  // Opens the selected row's value cell: BeforeEdit, unless the row is a heading. Answers
  // whether the cell is open.
  bool BeginEdit();
  // Closes the cell: AfterEdit, then the value is written unless cancelled. Answers whether a
  // value was written; false also when no cell was open.
  bool CommitEdit();
  // Closes the cell and keeps the row's value. Raises nothing.
  void CancelEdit();

  bool Redraw() const { return mRedraw.Redraw(); }
  void setRedraw(bool value) { mRedraw.setRedraw(value); }
  void LockRedraw() { mRedraw.Lock(); }
  void UnlockRedraw() { mRedraw.Unlock(); }
  int RedrawLockCount() const { return mRedraw.LockCount(); }

  // The shown rows as lines: "- " or "+ " before an open or closed heading, two blanks before
  // the rows under a heading ("> " instead for the selected row), then "Caption = Value", with
  // " (add)" after an addable row and " [editing: text]" after the edited one.
  QString Dump() const;

  // A click on a shown row of an enabled list: an open edit is committed, then the row is
  // selected, raising SelChange when the selection moved. Answers whether a row was reached.
  bool userSelect(const QString& key);
  // The clicks, then ItemDblClick.
  bool userDoubleClick(const QString& key);
  // A click on a shown button of the selected row: ButtonClick.
  bool userClickButton(const QString& buttonKey);
  // A click on the selected row's own button: BeforeExtendedEdit.
  bool userClickRowButton();
  // Types into the selected row's value cell, opening it first; replaces the cell's text.
  bool userType(const QString& text);
  // KeyDown (a handler may swallow the key by setting it to 0), KeyPress for a key that types
  // a character, KeyUp. In a cell that was open before the key and is still open after the
  // handlers, Return commits and Escape cancels.
  void userPressKey(int keyCode, int shift = 0);
  // The expander of a shown heading: Collapse or Expand after the flag moved.
  bool userCollapse(const QString& key);
  bool userExpand(const QString& key);

 signals:
  void BeforeEdit(sv::PropertyRow* row, bool* cancel);
  void BeforeExtendedEdit(sv::PropertyRow* row, bool* cancel);
  void AfterEdit(sv::PropertyRow* row, QVariant* newValue, bool* cancel);
  void Change(sv::PropertyRow* row);
  void SelChange(sv::PropertyRow* row);
  void Collapse(sv::PropertyRow* row);
  void Expand(sv::PropertyRow* row);
  void ButtonClick(sv::PropertyRow* row, const QString& buttonKey);
  void ItemDblClick(sv::PropertyRow* row);
  void KeyDown(int* keyCode, int shift);
  void KeyPress(int* keyAscii);
  void KeyUp(int* keyCode, int shift);

  // For renderers: the state changed.
  void rowsChanged();
  void rowChanged(sv::PropertyRow* row);
  void listChanged();
  void editChanged();
  void redrawChanged(bool redraw);

 private:
  friend class PropertyRow;

  std::size_t positionOf(const PropertyRow* row) const;
  bool holds(const PropertyRow* row) const;
  void removeAt(std::size_t index);
  PropertyListButton& button(const QString& key);
  PropertyRow* shownRow(const QString& key) const;
  bool userSetExpanded(const QString& key, bool expanded);
  template <class T>
  void write(T& member, const T& value);

  std::vector<std::unique_ptr<PropertyRow>> mRows;
  QHash<QString, PropertyRow*> mKeys;
  std::vector<PropertyColumn> mColumns;
  std::vector<PropertyListButton> mButtons;
  PropertyRow* mSelected = nullptr;
  PropertyRow* mEditing = nullptr;
  QString mEditText;
  QString mText;
  QString mEmptyMessage;
  int mDescriptionHeight = 49;
  bool mDescriptionVisible = true;
  bool mEnabled = true;
  bool mVisible = true;
  RedrawSwitch mRedraw;
};

}  // namespace sv
