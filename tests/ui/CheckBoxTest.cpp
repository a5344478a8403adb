#include "ui/CheckBox.h"

#include <gtest/gtest.h>

#include <vector>

#include "model/Error.h"
#include "ui/Keys.h"

namespace sv {
namespace {

struct LoggedBox {
  LoggedBox() {
    QObject::connect(&box, &CheckBox::Click, [this] { clicks.push_back(box.Value()); });
  }
  CheckBox box;
  std::vector<int> clicks;  // the value each Click saw
};

TEST(CheckBoxTest, ValueWrittenFromCodeRaisesClickWhenItChanges) {
  LoggedBox flag;
  flag.box.setValue(1);
  flag.box.setValue(1);
  flag.box.setValue(0);
  EXPECT_EQ(flag.clicks, (std::vector<int>{1, 0}));
  EXPECT_THROW(flag.box.setValue(2), Error);
  EXPECT_EQ(flag.box.Value(), 0);
}

TEST(CheckBoxTest, ClickAndSpaceToggleOnceEach) {
  LoggedBox flag;
  EXPECT_TRUE(flag.box.userClick());
  EXPECT_TRUE(flag.box.Focused());
  EXPECT_TRUE(flag.box.userPressKey(KeyCode::Space));
  EXPECT_FALSE(flag.box.userPressKey(KeyCode::Return));
  EXPECT_EQ(flag.clicks, (std::vector<int>{1, 0}));

  flag.box.setEnabled(false);
  EXPECT_FALSE(flag.box.userClick());
  flag.box.setEnabled(true);
  flag.box.setVisible(false);
  EXPECT_FALSE(flag.box.userPressKey(KeyCode::Space));
  EXPECT_EQ(flag.clicks.size(), 2u);
}

TEST(CheckBoxTest, MoveKeepsTheHeightUnlessGiven) {
  CheckBox box;
  int changes = 0;
  QObject::connect(&box, &CheckBox::changed, [&] { ++changes; });
  box.Move(45, 255, 2000);
  box.Move(45, 255, 2000);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(box.Height(), 255);
  box.Move(0, 0, 100, 300);
  EXPECT_EQ(box.Height(), 300);
}

}  // namespace
}  // namespace sv
