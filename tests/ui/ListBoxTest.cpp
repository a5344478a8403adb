#include "ui/ListBox.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "model/Error.h"
#include "ui/Dock.h"
#include "ui/ListHelpers.h"

namespace sv {
namespace {

struct List {
  explicit List(QStringList texts, ListStyle style = ListStyle::Standard,
                ListMultiSelect multi = ListMultiSelect::None) {
    box.setStyle(style);
    box.setMultiSelect(multi);
    for (const QString& text : texts) box.AddItem(text);
    QObject::connect(&box, &ListBox::Click,
                     [this] { log << QStringLiteral("Click %1").arg(box.ListIndex()); });
    QObject::connect(&box, &ListBox::ItemCheck,
                     [this](int index) { log << QStringLiteral("ItemCheck %1").arg(index); });
  }
  // The entries as "[x] text" lines, "> " before the ListIndex entry.
  std::string state() const {
    QStringList lines;
    for (int i = 0; i < box.ListCount(); ++i)
      lines << QStringLiteral("%1[%2] %3")
                   .arg(i == box.ListIndex() ? "> " : "")
                   .arg(box.Selected(i) ? "x" : " ")
                   .arg(box.List(i));
    return lines.join('\n').toStdString();
  }
  std::string take() {
    std::string text = log.join(QStringLiteral(", ")).toStdString();
    log.clear();
    return text;
  }

  ListBox box;
  QStringList log;
};

TEST(ListBoxTest, ASingleSelectListClicksWhenListIndexChanges) {
  List list({"a", "b", "c"});
  list.box.setListIndex(1);
  list.box.setListIndex(1);
  EXPECT_EQ(list.take(), "Click 1");
  list.box.userClick(2);
  EXPECT_EQ(list.take(), "Click 2");
  EXPECT_EQ(list.state(), "[ ] a\n[ ] b\n> [x] c");
  EXPECT_EQ(list.box.Text(), "c");

  list.box.setSelected(2, false);
  EXPECT_EQ(list.take(), "Click -1");
  EXPECT_EQ(list.box.SelCount(), 0);

  list.box.setListIndex(1);
  list.box.RemoveItem(0);
  EXPECT_EQ(list.box.ListIndex(), 0);
  list.box.AddItem("first", 0);
  EXPECT_EQ(list.box.NewIndex(), 0);
  EXPECT_EQ(list.state(), "[ ] first\n> [x] b\n[ ] c");
  EXPECT_THROW(list.box.setListIndex(3), Error);
  list.box.setItemData(2, 42);
  EXPECT_EQ(list.box.ItemData(2), 42);
}

TEST(ListBoxTest, ACheckBoxListTicksEntriesAndMovesTheFocus) {
  List list({"a", "b"}, ListStyle::CheckBox);
  list.box.setSelected(1, true);
  EXPECT_EQ(list.take(), "ItemCheck 1, Click 1");
  list.box.setSelected(1, true);
  EXPECT_EQ(list.take(), "") << "nothing changed";
  list.box.userClick(0);
  list.box.userClick(0);
  EXPECT_EQ(list.take(), "ItemCheck 0, Click 0, ItemCheck 0, Click 0");
  EXPECT_EQ(list.state(), "> [ ] a\n[x] b");
}

TEST(ListBoxTest, SelectListSelectsEveryEntryAndRestoresListIndex) {
  List empty({}, ListStyle::Standard, ListMultiSelect::Extended);
  SelectList(empty.box, true);
  EXPECT_EQ(empty.take(), "");

  List list({"a", "b", "c"}, ListStyle::Standard, ListMultiSelect::Simple);
  list.box.setListIndex(1);
  list.take();
  SelectList(list.box, true);
  EXPECT_EQ(list.state(), "[x] a\n> [x] b\n[x] c");
  EXPECT_EQ(list.take(), "Click 0, Click 1, Click 2, Click 1");
  SelectList(list.box, false);
  EXPECT_EQ(list.state(), "[ ] a\n> [ ] b\n[ ] c");

  // A Click handler that shortens the list leaves ListIndex past the end: no restore.
  List shrinking({"a", "b", "c", "d"}, ListStyle::CheckBox);
  shrinking.box.setListIndex(3);
  bool removed = false;
  QObject::connect(&shrinking.box, &ListBox::Click, [&] {
    if (removed) return;
    removed = true;
    shrinking.box.RemoveItem(3);
  });
  SelectList(shrinking.box, true);
  EXPECT_EQ(shrinking.state(), "[x] a\n[x] b\n> [x] c");
}

TEST(ListBoxTest, CheckListItemTicksTheFirstExactMatchOnly) {
  List list({"Alpha", "alpha", "Beta", "alpha"}, ListStyle::CheckBox);
  list.box.setListIndex(2);
  list.take();
  CheckListItem(list.box, "alpha");
  EXPECT_EQ(list.state(), "[ ] Alpha\n[x] alpha\n> [ ] Beta\n[ ] alpha");
  EXPECT_EQ(list.take(), "ItemCheck 1, Click 1, Click 2");
  CheckListItem(list.box, "Gamma");
  EXPECT_EQ(list.take(), "");
}

TEST(ListBoxTest, CommandCheckedWritesOnlyWhatDiffers) {
  Dock dock;
  DockCommand* toggle = dock.AddCommand("Grouped", DockCommandType::Check);
  int writes = 0;
  int clicks = 0;
  QObject::connect(&dock, &Dock::commandChanged, [&] { ++writes; });
  QObject::connect(&dock, &Dock::CommandClick, [&] { ++clicks; });

  SetCommandChecked(*toggle, false);
  EXPECT_EQ(writes, 0);
  SetCommandChecked(*toggle, true);
  SetCommandChecked(*toggle, true);
  EXPECT_EQ(writes, 1);
  EXPECT_EQ(toggle->Value(), 1);
  EXPECT_TRUE(CommandChecked(*toggle));
  toggle->setValue(2);
  EXPECT_FALSE(CommandChecked(*toggle)) << "pressed means exactly 1";
  EXPECT_EQ(clicks, 0);
}

}  // namespace
}  // namespace sv
