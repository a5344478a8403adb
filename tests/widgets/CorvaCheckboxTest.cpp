#include "widgets/CorvaCheckbox.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "FixedTextMeasurer.h"
#include "support/FakeServices.h"
#include "ui/Keys.h"

namespace sv {
namespace {

// A box whose log shows each redraw with the look it drew, and each Click with the value it saw.
struct LoggedCheckbox {
  LoggedCheckbox() {
    QObject::connect(&box, &CorvaCheckbox::Redrawn, [this] {
      QString look = QStringLiteral("draw %1").arg(box.Value());
      if (box.Hot()) look += " hot";
      if (box.Pressed()) look += " pressed";
      if (box.Focused()) look += " focused";
      log << look;
    });
    QObject::connect(&box, &CorvaCheckbox::Click,
                     [this] { log << QStringLiteral("Click %1").arg(box.Value()); });
  }
  std::string take() {
    std::string text = log.join(QStringLiteral(", ")).toStdString();
    log.clear();
    return text;
  }

  test::FakeServices services;
  CorvaCheckbox box;
  QStringList log;
};

TEST(CorvaCheckboxTest, EveryPropertyWriteRedrawsAndNoneRaisesClick) {
  LoggedCheckbox check;
  check.box.setValue(1);
  check.box.setValue(1);
  check.box.setCaption("Hidden");
  check.box.setFont("Segoe UI, 9");
  check.box.setForeColor(0x215DC6);
  check.box.setBackColor(0xD6DFF7);
  check.box.setEnabled(true);
  EXPECT_EQ(check.take(), "draw 1, draw 1, draw 1, draw 1, draw 1, draw 1, draw 1");
  EXPECT_EQ(check.box.Caption(), "Hidden");
  EXPECT_EQ(check.box.Font(), "Segoe UI, 9");
  EXPECT_EQ(check.box.RedrawCount(), 7);
}

TEST(CorvaCheckboxTest, AClickPressesReleasesThenTogglesBeforeClick) {
  LoggedCheckbox check;
  check.box.userClick();
  EXPECT_EQ(check.take(), "draw 0 pressed focused, draw 0 focused, draw 1 focused, Click 1");
  check.box.userMouseDown();
  EXPECT_TRUE(check.box.Pressed());
  check.box.userMouseUp();
  EXPECT_EQ(check.take(), "draw 1 pressed focused, draw 1 focused") << "no click without one";
  check.box.RaiseClick();
  EXPECT_EQ(check.take(), "draw 0 focused, Click 0");
}

TEST(CorvaCheckboxTest, SpaceOnKeyUpClicksAndOtherKeysDoNot) {
  LoggedCheckbox check;
  check.box.userPressKey(KeyCode::Space);
  check.box.userPressKey(KeyCode::Return);
  check.box.userPressKey('A');
  EXPECT_EQ(check.take(), "draw 1, Click 1");
}

TEST(CorvaCheckboxTest, LeavingRedrawsOnlyWhenTheBoxWasHot) {
  LoggedCheckbox check;
  check.box.userLeave();
  EXPECT_EQ(check.take(), "");
  check.box.userHover();
  check.box.userHover();
  EXPECT_EQ(check.take(), "draw 0 hot");
  check.box.userLeave();
  check.box.userLeave();
  EXPECT_EQ(check.take(), "draw 0");
  EXPECT_FALSE(check.box.Hot());
}

TEST(CorvaCheckboxTest, FocusMovesRedrawAndADisabledBoxTakesNoInput) {
  LoggedCheckbox check;
  check.box.userFocusIn();
  check.box.userFocusOut();
  EXPECT_EQ(check.take(), "draw 0 focused, draw 0");

  check.box.setEnabled(false);
  check.take();
  check.box.userHover();
  check.box.userClick();
  check.box.userPressKey(KeyCode::Space);
  check.box.userFocusIn();
  EXPECT_EQ(check.take(), "");
  EXPECT_EQ(check.box.Value(), 0);
}

TEST(CorvaCheckboxTest, RedrawsFollowTheTheme) {
  LoggedCheckbox check;
  check.box.Refresh();
  EXPECT_FALSE(check.box.Themed());
  test::ScopedFakeTheme theme;
  check.box.Refresh();
  EXPECT_TRUE(check.box.Themed());
}

TEST(CorvaCheckboxTest, ABadValueIsReportedByTheTrapAndChangesNothing) {
  LoggedCheckbox check;
  check.box.setValue(2);
  EXPECT_EQ(check.box.Value(), 0);
  EXPECT_EQ(check.take(), "");
  ASSERT_EQ(check.services.message->Count(), 1);
  const QString text = check.services.message->Boxes().front().text;
  EXPECT_TRUE(text.contains("Module: CorvaCheckbox")) << text.toStdString();
  EXPECT_TRUE(text.contains("Procedure: Value")) << text.toStdString();
}

}  // namespace
}  // namespace sv
