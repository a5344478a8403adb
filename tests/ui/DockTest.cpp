#include "ui/Dock.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "model/Error.h"
#include "ui/Keys.h"
#include "ui/ListHelpers.h"

namespace sv {
namespace {

// A toolbar with the kinds of command a tree's toolbar has.
struct Toolbar {
  Toolbar() {
    DockBand* main = dock.AddBand("Main");
    find = dock.AddBand("FindBar", "Find");
    dock.AddCommand("Next", DockCommandType::Button, "Next", main);
    dock.AddCommand("ShowPrivate", DockCommandType::Check, "Private", main);
    dock.AddCommand("FindValue", DockCommandType::Edit, "", find);
    dock.AddCommand("FindNow", DockCommandType::Button, "Find", find);
    QObject::connect(&dock, &Dock::CommandClick, [this](DockCommand* command) {
      log << QStringLiteral("CommandClick %1 %2").arg(command->Key()).arg(command->Value());
    });
    QObject::connect(&dock, &Dock::PopupWindowShowing,
                     [this](DockCommand* popup) { log << "PopupWindowShowing " + popup->Key(); });
    QObject::connect(&dock, &Dock::CommandChange, [this](DockCommand* command) {
      log << "CommandChange " + command->Key() + " " + command->Text();
    });
    QObject::connect(&dock, &Dock::CommandKeyDown, [this](DockCommand* command, int* code, int) {
      log << QStringLiteral("CommandKeyDown %1 %2").arg(command->Key()).arg(*code);
    });
    QObject::connect(&dock, &Dock::CommandKeyUp, [this](DockCommand* command, int* code, int) {
      log << QStringLiteral("CommandKeyUp %1 %2").arg(command->Key()).arg(*code);
    });
  }
  std::string take() {
    std::string text = log.join(QStringLiteral(", ")).toStdString();
    log.clear();
    return text;
  }

  Dock dock;
  DockBand* find;
  QStringList log;
};

TEST(DockTest, AToggleFlipsItsValueBeforeCommandClick) {
  Toolbar bar;
  DockCommand* toggle = bar.dock.Command("showprivate");
  EXPECT_TRUE(bar.dock.userClick("ShowPrivate"));
  EXPECT_EQ(bar.take(), "CommandClick ShowPrivate 1");
  EXPECT_TRUE(CommandChecked(*toggle));
  bar.dock.userClick("SHOWPRIVATE");
  EXPECT_EQ(bar.take(), "CommandClick ShowPrivate 0");

  toggle->setValue(1);
  bar.dock.userClick("Next");
  EXPECT_EQ(bar.take(), "CommandClick Next 0") << "writing Value raises nothing";
}

TEST(DockTest, HiddenOrDisabledCommandsCannotBeClicked) {
  Toolbar bar;
  DockCommand* next = bar.dock.Command("Next");
  next->setEnabled(false);
  EXPECT_FALSE(bar.dock.userClick("Next"));
  next->setEnabled(true);
  next->setVisible(false);
  EXPECT_FALSE(bar.dock.userClick("Next"));

  bar.find->setVisible(false);
  EXPECT_FALSE(bar.dock.userClick("FindNow"));
  EXPECT_FALSE(bar.dock.userType("FindValue", "x"));
  EXPECT_EQ(bar.take(), "");
  bar.find->setVisible(true);
  EXPECT_TRUE(bar.dock.userClick("FindNow"));
  EXPECT_EQ(bar.take(), "CommandClick FindNow 0");
  EXPECT_THROW(bar.dock.userClick("Missing"), Error);
}

TEST(DockTest, AnEditBoxTakesTextAndKeys) {
  Toolbar bar;
  EXPECT_TRUE(bar.dock.userType("FindValue", "Point"));
  EXPECT_TRUE(bar.dock.userPressKey("FindValue", KeyCode::Return));
  EXPECT_EQ(bar.take(),
            "CommandChange FindValue Point, CommandKeyDown FindValue 13, "
            "CommandKeyUp FindValue 13");
  EXPECT_EQ(bar.dock.Command("FindValue")->Text(), "Point");
  EXPECT_FALSE(bar.dock.userType("FindNow", "x")) << "a button takes no text";
  bar.dock.Command("FindValue")->setText("");
  EXPECT_EQ(bar.take(), "");
}

TEST(DockTest, PopupsOpenAndTheirEntriesBecomeCurrent) {
  Toolbar bar;
  DockCommand* popup = bar.dock.AddCommand("p-fullpageedit", DockCommandType::Popup);
  DockCommand* first = bar.dock.AddEntry(popup, "inplaceedit:Class", DockCommandType::Button);
  DockCommand* flag = bar.dock.AddEntry(popup, "flag:hidden", DockCommandType::Check);

  bar.dock.userClick("p-fullpageedit");
  bar.dock.userClick("inplaceedit:class");
  EXPECT_EQ(popup->CurrentEntry(), first);
  bar.dock.userClick("flag:hidden");
  EXPECT_EQ(bar.take(),
            "PopupWindowShowing p-fullpageedit, CommandClick inplaceedit:Class 0, "
            "CommandClick flag:hidden 1");
  EXPECT_EQ(popup->CurrentEntry(), flag);
  EXPECT_EQ(flag->Popup(), popup);
  EXPECT_EQ(bar.dock.CommandCount(), 7);

  popup->setEnabled(false);
  EXPECT_FALSE(bar.dock.userClick("flag:hidden")) << "a disabled popup closes its entries";

  EXPECT_THROW(bar.dock.AddEntry(bar.dock.Command("Next"), "x", DockCommandType::Button), Error);
  EXPECT_THROW(bar.dock.AddCommand("FLAG:HIDDEN", DockCommandType::Button), Error);
  bar.dock.RemoveCommand("P-FullPageEdit");
  EXPECT_FALSE(bar.dock.Exists("flag:hidden"));
  EXPECT_EQ(bar.dock.CommandCount(), 4);
  EXPECT_EQ(bar.dock.Band("findbar")->Commands().size(), 2u);

  bar.dock.ClearCommands();
  EXPECT_EQ(bar.dock.CommandCount(), 0);
  EXPECT_TRUE(bar.find->Commands().empty());
  EXPECT_EQ(bar.dock.Bands().size(), 2u);
}

}  // namespace
}  // namespace sv
