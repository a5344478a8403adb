#include "ui/ListHelpers.h"

#include "ui/DockCommand.h"
#include "ui/ListBox.h"

namespace sv {

namespace {

// Writes Selected of each entry the filter accepts, up to the first hit when `firstOnly`,
// then restores ListIndex, which the writes move.
template <class Accept>
void selectEntries(ListBox& list, bool value, bool firstOnly, Accept accept) {
  const int listIndex = list.ListIndex();
  for (int i = 0; i < list.ListCount(); ++i) {
    if (!accept(i)) continue;
    list.setSelected(i, value);
    if (firstOnly) break;
  }
  if (listIndex < list.ListCount()) list.setListIndex(listIndex);
}

}  // namespace

void SelectList(ListBox& list, bool value) {
  selectEntries(list, value, false, [](int) { return true; });
}

void CheckListItem(ListBox& list, const QString& text) {
  selectEntries(list, true, true, [&list, &text](int i) { return list.List(i) == text; });
}

bool CommandChecked(const DockCommand& command) {
  return command.Value() == 1;
}

void SetCommandChecked(DockCommand& command, bool value) {
  const int wanted = value ? 1 : 0;
  if (command.Value() != wanted) command.setValue(wanted);
}

}  // namespace sv
