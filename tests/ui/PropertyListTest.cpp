#include "ui/PropertyList.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "model/Error.h"
#include "ui/Keys.h"

namespace sv {
namespace {

// A tag list filled as the comment editor fills it, logging every event.
struct TagList {
  TagList() {
    list.setColumns({{"Name", "Tag"}, {"Value", "Value"}});
    list.AddButton("AddButton", 101, "Click to add this tag");
    list.AddButton("DeleteButton", 102, "Delete Tag");
    list.Add("ExistingHeader", "Existing Comments", PropertyRowKind::Heading);
    addComment("c1", "##PARAM", "Parameter", "The width.");
    addComment("c2", "##RETURNS", "Returns", "The area.");
    list.Add("NewHeader", "Available to add", PropertyRowKind::Heading);
    PropertyRow* add = list.Add("new:##PARAM", "Parameter");
    add->setName("##PARAM");
    add->setIsAddRow(true);
    add->setValue("Click to add this tag...");

    QObject::connect(&list, &PropertyList::BeforeEdit, [this](PropertyRow* row, bool* cancel) {
      log << "BeforeEdit " + row->Key();
      *cancel = row->Kind() != PropertyRowKind::Item || row->IsAddRow();
    });
    QObject::connect(&list, &PropertyList::AfterEdit,
                     [this](PropertyRow* row, QVariant* value, bool* cancel) {
                       log << "AfterEdit " + row->Key() + " " + value->toString();
                       *cancel = value->toString() == "refuse";
                     });
    QObject::connect(&list, &PropertyList::Change, [this](PropertyRow* row) {
      log << "Change " + row->Key() + (list.EditMode() ? " (editing)" : "");
    });
    QObject::connect(&list, &PropertyList::SelChange,
                     [this](PropertyRow* row) { log << "SelChange " + row->Key(); });
    QObject::connect(&list, &PropertyList::ItemDblClick,
                     [this](PropertyRow* row) { log << "ItemDblClick " + row->Key(); });
    QObject::connect(&list, &PropertyList::ButtonClick,
                     [this](PropertyRow* row, const QString& button) {
                       log << "ButtonClick " + row->Key() + " " + button;
                     });
    QObject::connect(&list, &PropertyList::Collapse,
                     [this](PropertyRow* row) { log << "Collapse " + row->Key(); });
    QObject::connect(&list, &PropertyList::KeyDown,
                     [this](int* code, int) { log << QStringLiteral("KeyDown %1").arg(*code); });
    QObject::connect(&list, &PropertyList::KeyPress,
                     [this](int* ascii) { log << QStringLiteral("KeyPress %1").arg(*ascii); });
    QObject::connect(&list, &PropertyList::KeyUp,
                     [this](int* code, int) { log << QStringLiteral("KeyUp %1").arg(*code); });
  }
  void addComment(const QString& id, const QString& tag, const QString& caption,
                  const QString& text) {
    PropertyRow* row = list.Add(id, caption);
    row->setName(tag);
    row->setValue(text);
  }
  std::string take() {
    std::string text = log.join(QStringLiteral(", ")).toStdString();
    log.clear();
    return text;
  }
  std::string dump() const { return list.Dump().toStdString(); }

  PropertyList list;
  QStringList log;
};

TEST(PropertyListTest, RowsShowUnderTheirHeadingsInOrder) {
  TagList tags;
  EXPECT_EQ(tags.dump(),
            "- Existing Comments\n"
            "  Parameter = The width.\n"
            "  Returns = The area.\n"
            "- Available to add\n"
            "  Parameter = Click to add this tag... (add)");
  EXPECT_EQ(tags.list.Item("C2")->Index(), 3);
  EXPECT_EQ(tags.list.Item(5)->Key(), "new:##PARAM");
  EXPECT_THROW(tags.list.Add("c1"), Error);
  EXPECT_THROW(tags.list.Item(6), Error);

  tags.list.Remove(2);
  EXPECT_EQ(tags.list.Item("c2")->Index(), 2);
  EXPECT_FALSE(tags.list.Exists("c1"));
  tags.list.Item("c2")->setHidden(true);
  tags.list.Clear();
  EXPECT_EQ(tags.list.Count(), 0);
  EXPECT_EQ(tags.dump(), "");
}

TEST(PropertyListTest, UserSelectionRaisesSelChangeButCodeSelectionDoesNot) {
  TagList tags;
  EXPECT_TRUE(tags.list.userSelect("c2"));
  EXPECT_TRUE(tags.list.userSelect("C2"));
  EXPECT_EQ(tags.take(), "SelChange c2");
  tags.list.Item("c1")->setSelected(true);
  EXPECT_EQ(tags.take(), "");
  EXPECT_EQ(tags.list.SelectedItem()->Key(), "c1");

  EXPECT_TRUE(tags.list.userDoubleClick("new:##param"));
  EXPECT_EQ(tags.take(), "SelChange new:##PARAM, ItemDblClick new:##PARAM");

  tags.list.setEnabled(false);
  EXPECT_FALSE(tags.list.userSelect("c1"));
  EXPECT_EQ(tags.take(), "");
}

TEST(PropertyListTest, HeadingsStayOpenWhenTheHandlerReopensThem) {
  TagList tags;
  QObject::connect(&tags.list, &PropertyList::Collapse,
                   [](PropertyRow* row) { row->setExpanded(true); });
  EXPECT_TRUE(tags.list.userCollapse("ExistingHeader"));
  EXPECT_EQ(tags.take(), "Collapse ExistingHeader");
  EXPECT_TRUE(tags.list.Item("ExistingHeader")->Expanded());
  EXPECT_TRUE(tags.list.Item("c1")->IsShown());
  EXPECT_FALSE(tags.list.userCollapse("c1")) << "only headings open and close";
}

TEST(PropertyListTest, AClosedHeadingHidesItsRows) {
  TagList tags;
  tags.list.userSelect("c1");
  tags.list.userType("half typed");
  EXPECT_TRUE(tags.list.userCollapse("existingheader"));
  EXPECT_FALSE(tags.list.EditMode()) << "a hidden cell cannot stay open";
  EXPECT_EQ(tags.dump(),
            "+ Existing Comments\n"
            "- Available to add\n"
            "  Parameter = Click to add this tag... (add)");
  EXPECT_FALSE(tags.list.userSelect("c2"));
  EXPECT_TRUE(tags.list.userExpand("ExistingHeader"));
  EXPECT_TRUE(tags.list.userSelect("c2"));
}

TEST(PropertyListTest, EditingACellRaisesItsEventsInOrder) {
  TagList tags;
  tags.list.userSelect("c1");
  tags.take();
  EXPECT_TRUE(tags.list.userType("The new width."));
  EXPECT_EQ(tags.dump(),
            "- Existing Comments\n"
            "> Parameter = The width. [editing: The new width.]\n"
            "  Returns = The area.\n"
            "- Available to add\n"
            "  Parameter = Click to add this tag... (add)");
  tags.list.userPressKey(KeyCode::Return);
  EXPECT_EQ(tags.take(),
            "BeforeEdit c1, KeyDown 13, KeyPress 13, AfterEdit c1 The new width., "
            "Change c1 (editing), KeyUp 13");
  EXPECT_FALSE(tags.list.EditMode());
  EXPECT_EQ(tags.list.Item("c1")->Value().toString(), "The new width.");

  tags.list.userType("dropped");
  tags.list.userPressKey(KeyCode::Escape);
  EXPECT_EQ(tags.take(), "BeforeEdit c1, KeyDown 27, KeyPress 27, KeyUp 27");
  EXPECT_EQ(tags.list.Item("c1")->Value().toString(), "The new width.");

  tags.list.userType("refuse");
  EXPECT_FALSE(tags.list.CommitEdit());
  EXPECT_EQ(tags.take(), "BeforeEdit c1, AfterEdit c1 refuse");
  EXPECT_EQ(tags.list.Item("c1")->Value().toString(), "The new width.");
}

TEST(PropertyListTest, MovingToAnotherRowCommitsTheOpenCellFirst) {
  TagList tags;
  tags.list.userSelect("c1");
  tags.list.userType("Wider.");
  tags.take();
  tags.list.userSelect("c2");
  EXPECT_EQ(tags.take(), "AfterEdit c1 Wider., Change c1 (editing), SelChange c2");

  EXPECT_FALSE(tags.list.userSelect("ExistingHeader") && tags.list.BeginEdit());
  tags.list.userSelect("new:##PARAM");
  EXPECT_FALSE(tags.list.userType("x")) << "the handler refuses addable rows";
  EXPECT_EQ(tags.take(), "SelChange ExistingHeader, SelChange new:##PARAM, BeforeEdit new:##PARAM");
}

TEST(PropertyListTest, AnEnterHandlerThatOpensTheCellKeepsItOpen) {
  TagList tags;
  QObject::connect(&tags.list, &PropertyList::KeyPress, [&](int* ascii) {
    if (*ascii == KeyCode::Return && !tags.list.EditMode()) tags.list.BeginEdit();
  });
  tags.list.userSelect("c2");
  tags.list.userPressKey(KeyCode::Return);
  EXPECT_TRUE(tags.list.EditMode());
  EXPECT_EQ(tags.list.EditText(), "The area.");
}

TEST(PropertyListTest, CodeWritesRaiseChangeOnlyWhenTheValueMoves) {
  TagList tags;
  tags.list.Item("c2")->setValue("The area.");
  tags.list.Item("c2")->setValue("Area in pixels.");
  tags.list.Item("c2")->setCaption("Result");
  EXPECT_EQ(tags.take(), "Change c2");
  PropertyRow* row = tags.list.Item("c2");
  row->setUnchangedValue("Area in pixels.");
  EXPECT_FALSE(row->Modified());
  row->setValue("Area.");
  EXPECT_TRUE(row->Modified());
}

TEST(PropertyListTest, RowButtonsReportTheSelectedRow) {
  TagList tags;
  tags.list.userSelect("c1");
  tags.list.setButtonVisible("AddButton", false);
  EXPECT_FALSE(tags.list.userClickButton("addbutton"));
  EXPECT_TRUE(tags.list.userClickButton("DeleteButton"));
  EXPECT_THROW(tags.list.userClickButton("Other"), Error);
  EXPECT_EQ(tags.take(), "SelChange c1, ButtonClick c1 DeleteButton");
  EXPECT_EQ(tags.list.Button("AddButton").Image, 101);
  EXPECT_EQ(tags.list.Button("DeleteButton").ToolTip, "Delete Tag");

  // The handler may remove the row it was told about.
  QObject::connect(&tags.list, &PropertyList::ButtonClick,
                   [&](PropertyRow* row, const QString&) { tags.list.Remove(row->Key()); });
  tags.list.userClickButton("DeleteButton");
  EXPECT_FALSE(tags.list.Exists("c1"));
  EXPECT_EQ(tags.list.SelectedItem(), nullptr);
  EXPECT_FALSE(tags.list.userClickButton("DeleteButton")) << "no row is selected";
}

TEST(PropertyListTest, AKeyDownHandlerCanSwallowTheKey) {
  TagList tags;
  QObject::connect(&tags.list, &PropertyList::KeyDown, [](int* code, int) {
    if (*code == KeyCode::Delete) *code = 0;
  });
  tags.list.userPressKey(KeyCode::Delete);
  tags.list.userPressKey('A');
  EXPECT_EQ(tags.take(), "KeyDown 46, KeyUp 46, KeyDown 65, KeyPress 97, KeyUp 65");
}

TEST(PropertyListTest, DescriptionPaneAndExtendedEditorAreState) {
  TagList tags;
  int changes = 0;
  QObject::connect(&tags.list, &PropertyList::listChanged, [&] { ++changes; });
  tags.list.setDescriptionVisible(false);
  tags.list.setDescriptionHeight(35);
  tags.list.setDescriptionHeight(35);
  EXPECT_FALSE(tags.list.DescriptionVisible());
  EXPECT_EQ(tags.list.DescriptionHeight(), 35);
  EXPECT_EQ(changes, 2);

  bool extended = false;
  QObject::connect(&tags.list, &PropertyList::BeforeExtendedEdit,
                   [&](PropertyRow*, bool* cancel) { extended = *cancel = true; });
  tags.list.userSelect("c1");
  EXPECT_FALSE(tags.list.userClickRowButton()) << "the row has no button";
  tags.list.Item("c1")->setHasButton(true);
  EXPECT_TRUE(tags.list.userClickRowButton());
  EXPECT_TRUE(extended);
  EXPECT_FALSE(tags.list.EditMode());
}

}  // namespace
}  // namespace sv
