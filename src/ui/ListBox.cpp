#include "ui/ListBox.h"

#include <utility>

#include "model/Error.h"

namespace sv {

namespace {

[[noreturn]] void badIndex() {
  Raise(ErrorNumber::InvalidCall, QStringLiteral("Invalid procedure call or argument"));
}

}  // namespace

ListBox::ListBox(QObject* parent) : QObject(parent) {}

const ListBox::Entry& ListBox::entry(int index) const {
  if (index < 0 || index >= ListCount()) badIndex();
  return mEntries[static_cast<std::size_t>(index)];
}

ListBox::Entry& ListBox::entry(int index) {
  return const_cast<Entry&>(std::as_const(*this).entry(index));
}

void ListBox::AddItem(const QString& text, int index) {
  if (index == -1) index = ListCount();
  if (index < 0 || index > ListCount()) badIndex();
  mEntries.insert(mEntries.begin() + index, Entry{text});
  if (mListIndex >= index) ++mListIndex;
  mNewIndex = index;
  emit itemsChanged();
}

void ListBox::RemoveItem(int index) {
  entry(index);
  mEntries.erase(mEntries.begin() + index);
  if (mListIndex == index)
    mListIndex = -1;
  else if (mListIndex > index)
    --mListIndex;
  emit itemsChanged();
}

void ListBox::Clear() {
  mEntries.clear();
  mListIndex = -1;
  mNewIndex = -1;
  emit itemsChanged();
}

void ListBox::setList(int index, const QString& text) {
  entry(index).text = text;
  emit itemsChanged();
}

int ListBox::SelCount() const {
  int count = 0;
  for (const Entry& e : mEntries) count += e.selected ? 1 : 0;
  return count;
}

QString ListBox::Text() const {
  return mListIndex < 0 ? QString() : List(mListIndex);
}

void ListBox::setListIndex(int index) {
  if (index != -1) entry(index);
  if (index == mListIndex) return;
  if (singleSelect()) {
    if (mListIndex >= 0) entry(mListIndex).selected = false;
    if (index >= 0) entry(index).selected = true;
  }
  mListIndex = index;
  emit itemsChanged();
  emit Click();
}

void ListBox::setSelected(int index, bool value) {
  Entry& e = entry(index);
  if (singleSelect()) {
    if (value) {
      setListIndex(index);
      return;
    }
    if (!e.selected) return;
    e.selected = false;
    mListIndex = -1;
    emit itemsChanged();
    emit Click();
    return;
  }
  const bool ticked = e.selected != value;
  if (!ticked && mListIndex == index) return;
  e.selected = value;
  mListIndex = index;
  emit itemsChanged();
  if (ticked && mStyle == ListStyle::CheckBox) emit ItemCheck(index);
  emit Click();
}

void ListBox::userClick(int index) {
  if (singleSelect()) {
    setListIndex(index);
    return;
  }
  setSelected(index, !Selected(index));
}

void ListBox::userDoubleClick(int index) {
  userClick(index);
  emit DblClick();
}

}  // namespace sv
