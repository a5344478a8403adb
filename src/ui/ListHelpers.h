#pragma once

#include <QString>

namespace sv {

class DockCommand;
class ListBox;

// Selects (or clears) every entry of a list, then puts ListIndex back where it was unless the
// list has shrunk below it meanwhile. An empty list is left alone.
void SelectList(ListBox& list, bool value);
// Selects the first entry whose text equals `text` exactly, in the same way.
void CheckListItem(ListBox& list, const QString& text);
// A toggle command's pressed state: true when its Value is 1.
bool CommandChecked(const DockCommand& command);
// Writes Value 1 or 0, only when it differs, so that an unchanged command sees no write.
void SetCommandChecked(DockCommand& command, bool value);

}  // namespace sv
