#pragma once

#include <QObject>
#include <QString>
#include <vector>

namespace sv {

enum class ListMultiSelect { None = 0, Simple = 1, Extended = 2 };
// Standard shows plain entries; CheckBox shows a box before each entry, ticked when Selected.
enum class ListStyle { Standard = 0, CheckBox = 1 };

// A list box held as state. Entries are numbered from 0; ListIndex is -1 when no entry has
// the focus. As in a classic list box, writing ListIndex or Selected from code raises Click
// when it changes something, and a check-box list raises ItemCheck before that.
//
// In a single-select list ListIndex is the selected entry. In a multi-select or check-box
// list entries are selected on their own and ListIndex is the entry with the focus, which
// moves to every entry whose Selected is written.
class ListBox : public QObject {
  Q_OBJECT

 public:
  explicit ListBox(QObject* parent = nullptr);

  // Inserts before `index`, or appends when it is -1; sets NewIndex.
  void AddItem(const QString& text, int index = -1);
  void RemoveItem(int index);
  void Clear();
  int ListCount() const { return static_cast<int>(mEntries.size()); }
  int NewIndex() const { return mNewIndex; }

  // Indexes outside the list raise InvalidCall.
  const QString& List(int index) const { return entry(index).text; }
  void setList(int index, const QString& text);
  long ItemData(int index) const { return entry(index).itemData; }
  void setItemData(int index, long value) { entry(index).itemData = value; }
  bool Selected(int index) const { return entry(index).selected; }
  void setSelected(int index, bool value);
  int SelCount() const;

  int ListIndex() const { return mListIndex; }
  // -1 clears the focus (and, in a single-select list, the selection).
  void setListIndex(int index);
  // The text of the ListIndex entry, or empty.
  QString Text() const;

  ListMultiSelect MultiSelect() const { return mMultiSelect; }
  void setMultiSelect(ListMultiSelect value) { mMultiSelect = value; }
  ListStyle Style() const { return mStyle; }
  void setStyle(ListStyle value) { mStyle = value; }

  // A click on an entry: a single-select list selects it; a multi-select list flips it; a
  // check-box list flips its tick (ItemCheck). Click follows when something changed.
  void userClick(int index);
  // The clicks, then DblClick.
  void userDoubleClick(int index);

 signals:
  void Click();
  void DblClick();
  void ItemCheck(int index);

  // For renderers: entries were added, removed or changed.
  void itemsChanged();

 private:
  struct Entry {
    QString text;
    long itemData = 0;
    bool selected = false;
  };

  bool singleSelect() const {
    return mMultiSelect == ListMultiSelect::None && mStyle == ListStyle::Standard;
  }
  const Entry& entry(int index) const;
  Entry& entry(int index);

  std::vector<Entry> mEntries;
  int mListIndex = -1;
  int mNewIndex = -1;
  ListMultiSelect mMultiSelect = ListMultiSelect::None;
  ListStyle mStyle = ListStyle::Standard;
};

}  // namespace sv
