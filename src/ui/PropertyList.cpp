#include "ui/PropertyList.h"

#include <QStringList>
#include <algorithm>

#include "model/Error.h"
#include "ui/Keys.h"

namespace sv {

namespace {

[[noreturn]] void missingKey() {
  Raise(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Element not found"));
}

}  // namespace

PropertyList::PropertyList(QObject* parent)
    : QObject(parent), mRedraw([this](bool redraw) { emit redrawChanged(redraw); }) {}

PropertyList::~PropertyList() = default;

template <class T>
void PropertyList::write(T& member, const T& value) {
  if (member == value) return;
  member = value;
  emit listChanged();
}

PropertyRow* PropertyList::Add(const QString& key, const QString& caption, PropertyRowKind kind) {
  if (!key.isEmpty() && Exists(key))
    Raise(ErrorNumber::DuplicateKey, QStringLiteral("Key is not unique in collection"));
  mRows.push_back(std::unique_ptr<PropertyRow>(new PropertyRow(this, key, caption, kind)));
  PropertyRow* row = mRows.back().get();
  if (!key.isEmpty()) mKeys.insert(key.toLower(), row);
  emit rowsChanged();
  return row;
}

std::size_t PropertyList::positionOf(const PropertyRow* row) const {
  auto it = std::find_if(mRows.begin(), mRows.end(),
                         [row](const auto& owned) { return owned.get() == row; });
  if (it == mRows.end()) missingKey();
  return static_cast<std::size_t>(it - mRows.begin());
}

bool PropertyList::holds(const PropertyRow* row) const {
  return std::any_of(mRows.begin(), mRows.end(),
                     [row](const auto& owned) { return owned.get() == row; });
}

void PropertyList::removeAt(std::size_t index) {
  PropertyRow* row = mRows[index].get();
  if (mSelected == row) mSelected = nullptr;
  if (mEditing == row) CancelEdit();
  if (!row->Key().isEmpty()) mKeys.remove(row->Key().toLower());
  mRows.erase(mRows.begin() + static_cast<std::ptrdiff_t>(index));
  emit rowsChanged();
}

void PropertyList::Remove(const QString& key) {
  removeAt(positionOf(Item(key)));
}

void PropertyList::Remove(int index) {
  removeAt(positionOf(Item(index)));
}

void PropertyList::Clear() {
  CancelEdit();
  mSelected = nullptr;
  mKeys.clear();
  mRows.clear();
  emit rowsChanged();
}

PropertyRow* PropertyList::Find(const QString& key) const {
  return mKeys.value(key.toLower());
}

PropertyRow* PropertyList::Item(const QString& key) const {
  PropertyRow* row = Find(key);
  if (!row) missingKey();
  return row;
}

PropertyRow* PropertyList::Item(int index) const {
  if (index < 1 || index > Count()) missingKey();
  return mRows[static_cast<std::size_t>(index - 1)].get();
}

std::vector<PropertyRow*> PropertyList::Rows() const {
  std::vector<PropertyRow*> rows;
  for (const auto& row : mRows) rows.push_back(row.get());
  return rows;
}

void PropertyList::setSelectedItem(PropertyRow* row) {
  if (row && row->List() != this)
    Raise(ErrorNumber::InvalidCall, QStringLiteral("The row belongs to another list"));
  if (mEditing && mEditing != row) CancelEdit();
  write(mSelected, row);
}

void PropertyList::setColumns(std::vector<PropertyColumn> columns) {
  mColumns = std::move(columns);
  emit listChanged();
}

void PropertyList::setText(const QString& value) {
  write(mText, value);
}

void PropertyList::setEmptyMessage(const QString& value) {
  write(mEmptyMessage, value);
}

void PropertyList::setEnabled(bool value) {
  write(mEnabled, value);
}

void PropertyList::setVisible(bool value) {
  write(mVisible, value);
}

void PropertyList::setDescriptionVisible(bool value) {
  write(mDescriptionVisible, value);
}

void PropertyList::setDescriptionHeight(int value) {
  write(mDescriptionHeight, value);
}

void PropertyList::AddButton(const QString& key, int image, const QString& toolTip) {
  for (const PropertyListButton& existing : mButtons)
    if (existing.Key.compare(key, Qt::CaseInsensitive) == 0)
      Raise(ErrorNumber::DuplicateKey, QStringLiteral("Key is not unique in collection"));
  mButtons.push_back({key, image, toolTip, true});
  emit listChanged();
}

PropertyListButton& PropertyList::button(const QString& key) {
  for (PropertyListButton& existing : mButtons)
    if (existing.Key.compare(key, Qt::CaseInsensitive) == 0) return existing;
  missingKey();
}

const PropertyListButton& PropertyList::Button(const QString& key) const {
  return const_cast<PropertyList*>(this)->button(key);
}

void PropertyList::setButtonVisible(const QString& key, bool visible) {
  write(button(key).Visible, visible);
}

bool PropertyList::BeginEdit() {
  if (mEditing) return true;
  PropertyRow* row = mSelected;
  if (!row || row->Kind() == PropertyRowKind::Heading) return false;
  bool cancel = false;
  emit BeforeEdit(row, &cancel);
  if (cancel || !holds(row)) return false;
  mEditing = row;
  mEditText = row->Value().toString();
  emit editChanged();
  return true;
}

bool PropertyList::CommitEdit() {
  PropertyRow* row = mEditing;
  if (!row) return false;
  QVariant value = mEditText;
  bool cancel = false;
  emit AfterEdit(row, &value, &cancel);
  // A handler may have closed the cell or removed the row meanwhile.
  if (mEditing != row) return false;
  if (cancel) {
    CancelEdit();
    return false;
  }
  row->setValue(value);
  if (mEditing != row) return false;
  CancelEdit();
  return true;
}

void PropertyList::CancelEdit() {
  if (!mEditing) return;
  mEditing = nullptr;
  mEditText.clear();
  emit editChanged();
}

QString PropertyList::Dump() const {
  QStringList lines;
  bool underHeading = false;
  for (const auto& row : mRows) {
    if (row->Kind() == PropertyRowKind::Heading) underHeading = true;
    if (!row->IsShown()) continue;
    const bool heading = row->Kind() == PropertyRowKind::Heading;
    QString line;
    if (row.get() == mSelected)
      line = QStringLiteral("> ");
    else if (underHeading && !heading)
      line = QStringLiteral("  ");
    if (heading) {
      line += (row->Expanded() ? QStringLiteral("- ") : QStringLiteral("+ ")) + row->Caption();
    } else {
      line += row->Caption() + QStringLiteral(" = ") + row->Value().toString();
      if (row->IsAddRow()) line += QStringLiteral(" (add)");
    }
    if (row.get() == mEditing) line += QStringLiteral(" [editing: ") + mEditText + QLatin1Char(']');
    lines << line;
  }
  return lines.join(QLatin1Char('\n'));
}

PropertyRow* PropertyList::shownRow(const QString& key) const {
  PropertyRow* row = Item(key);
  if (!mEnabled || !mVisible || !row->IsShown()) return nullptr;
  return row;
}

bool PropertyList::userSelect(const QString& key) {
  PropertyRow* row = shownRow(key);
  if (!row) return false;
  if (mEditing) CommitEdit();
  if (!holds(row) || row == mSelected) return true;
  mSelected = row;
  emit listChanged();
  emit SelChange(row);
  return true;
}

bool PropertyList::userDoubleClick(const QString& key) {
  PropertyRow* row = shownRow(key);
  if (!row || !userSelect(key)) return false;
  if (holds(row)) emit ItemDblClick(row);
  return true;
}

bool PropertyList::userClickButton(const QString& buttonKey) {
  const PropertyListButton& pressed = button(buttonKey);
  if (!mEnabled || !mVisible || !pressed.Visible || !mSelected) return false;
  emit ButtonClick(mSelected, pressed.Key);
  return true;
}

bool PropertyList::userClickRowButton() {
  if (!mEnabled || !mVisible || !mSelected || !mSelected->HasButton()) return false;
  bool cancel = false;
  emit BeforeExtendedEdit(mSelected, &cancel);
  return true;
}

bool PropertyList::userType(const QString& text) {
  if (!mEnabled || !mVisible) return false;
  if (!mEditing && !BeginEdit()) return false;
  mEditText = text;
  emit editChanged();
  return true;
}

void PropertyList::userPressKey(int keyCode, int shift) {
  const bool wasEditing = EditMode();
  int code = keyCode;
  emit KeyDown(&code, shift);
  int ascii = KeyAscii(code, shift);
  if (ascii != 0) emit KeyPress(&ascii);
  if (wasEditing && EditMode()) {
    if (ascii == KeyCode::Return) CommitEdit();
    if (ascii == KeyCode::Escape) CancelEdit();
  }
  int upCode = keyCode;
  emit KeyUp(&upCode, shift);
}

bool PropertyList::userSetExpanded(const QString& key, bool expanded) {
  PropertyRow* row = shownRow(key);
  if (!row || row->Kind() != PropertyRowKind::Heading || row->Expanded() == expanded) return false;
  row->setExpanded(expanded);
  if (!expanded && mEditing && !mEditing->IsShown()) CancelEdit();
  if (expanded)
    emit Expand(row);
  else
    emit Collapse(row);
  return true;
}

bool PropertyList::userCollapse(const QString& key) {
  return userSetExpanded(key, false);
}

bool PropertyList::userExpand(const QString& key) {
  return userSetExpanded(key, true);
}

}  // namespace sv
