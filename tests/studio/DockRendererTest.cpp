#include "studio/DockRenderer.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include "StudioTestKit.h"

namespace sv {
namespace {

class DockRendererTest : public ::testing::Test {
 protected:
  DockRendererTest() {
    mBand = mDock.AddBand(QStringLiteral("main"), QStringLiteral("Main"));
    mDock.AddCommand(QStringLiteral("save"), DockCommandType::Button, QStringLiteral("Save"),
                     mBand);
    mDock.AddCommand(QStringLiteral("preview"), DockCommandType::Check, QStringLiteral("Preview"),
                     mBand);
    mDock.AddCommand(QStringLiteral("find"), DockCommandType::Edit, QStringLiteral("Find"), mBand);
    DockCommand* view = mDock.AddCommand(QStringLiteral("view"), DockCommandType::Popup,
                                         QStringLiteral("View"), mBand);
    mDock.AddEntry(view, QStringLiteral("members"), DockCommandType::Check,
                   QStringLiteral("Members"));
    QObject::connect(&mDock, &Dock::CommandClick, [this](DockCommand* command) {
      mEvents << QStringLiteral("CommandClick %1=%2").arg(command->Key()).arg(command->Value());
    });
    QObject::connect(&mDock, &Dock::CommandChange, [this](DockCommand* command) {
      mEvents << QStringLiteral("CommandChange ") + command->Text();
    });
    QObject::connect(&mDock, &Dock::CommandKeyDown, [this](DockCommand*, int* code, int) {
      mEvents << QStringLiteral("CommandKeyDown %1").arg(*code);
    });
    QObject::connect(&mDock, &Dock::PopupWindowShowing, [this](DockCommand* popup) {
      mEvents << QStringLiteral("PopupWindowShowing ") + popup->Key();
      // Components fill their popups as they open.
      if (!mDock.Exists(QStringLiteral("files")))
        mDock.AddEntry(popup, QStringLiteral("files"), DockCommandType::Button,
                       QStringLiteral("Files"));
    });
    mView.show();
  }

  QToolButton* buttonFor(const QString& key) const {
    return qobject_cast<QToolButton*>(
        mView.ToolBarFor(mBand)->widgetForAction(mView.ActionFor(mDock.Command(key))));
  }

  Dock mDock;
  DockBand* mBand;
  DockRenderer mView{&mDock};
  QStringList mEvents;
};

TEST_F(DockRendererTest, AToggleClickedInTheToolbarReachesCommandClick) {
  QToolButton* preview = buttonFor(QStringLiteral("preview"));
  ASSERT_NE(preview, nullptr);
  QTest::mouseClick(preview, Qt::LeftButton);
  EXPECT_EQ(mEvents.join(", "), "CommandClick preview=1");
  EXPECT_TRUE(preview->isChecked());

  // A handler that refuses the toggle is what the button shows.
  QObject::connect(&mDock, &Dock::CommandClick, [](DockCommand* command) { command->setValue(1); });
  QTest::mouseClick(preview, Qt::LeftButton);
  EXPECT_TRUE(preview->isChecked());

  mEvents.clear();
  QTest::mouseClick(buttonFor(QStringLiteral("save")), Qt::LeftButton);
  EXPECT_EQ(mEvents.join(", "), "CommandClick save=0");
}

TEST_F(DockRendererTest, CommandStateShowsOnItsButton) {
  DockCommand* save = mDock.Command(QStringLiteral("save"));
  save->setEnabled(false);
  save->setCaption(QStringLiteral("Save all"));
  mDock.Command(QStringLiteral("preview"))->setValue(1);
  mDock.Command(QStringLiteral("find"))->setText(QStringLiteral("circle"));
  EXPECT_FALSE(mView.ActionFor(save)->isEnabled());
  EXPECT_EQ(mView.ActionFor(save)->text(), "Save all");
  EXPECT_TRUE(mView.ActionFor(mDock.Command(QStringLiteral("preview")))->isChecked());
  EXPECT_EQ(mView.EditFor(mDock.Command(QStringLiteral("find")))->text(), "circle");

  mDock.Command(QStringLiteral("preview"))->setVisible(false);
  EXPECT_FALSE(mView.ActionFor(mDock.Command(QStringLiteral("preview")))->isVisible());
  mBand->setVisible(false);
  EXPECT_FALSE(mView.ToolBarFor(mBand)->isVisible());
  EXPECT_TRUE(mEvents.isEmpty());

  mDock.AddCommand(QStringLiteral("close"), DockCommandType::Button, QStringLiteral("Close"),
                   mBand);
  EXPECT_EQ(mView.ActionFor(mDock.Command(QStringLiteral("close")))->text(), "Close");
}

TEST_F(DockRendererTest, TypingInTheEditBoxReachesCommandChangeAndKeys) {
  QLineEdit* find = mView.EditFor(mDock.Command(QStringLiteral("find")));
  QTest::keyClicks(find, QStringLiteral("ab"));
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(mEvents.join(", "),
            "CommandKeyDown 65, CommandChange a, CommandKeyDown 66, CommandChange ab, "
            "CommandKeyDown 13");
  EXPECT_EQ(mDock.Command(QStringLiteral("find"))->Text(), "ab");
}

TEST_F(DockRendererTest, APopupFillsItsMenuAfterPopupWindowShowing) {
  QMenu* menu = mView.MenuFor(mDock.Command(QStringLiteral("view")));
  ASSERT_NE(menu, nullptr);
  emit menu->aboutToShow();
  EXPECT_EQ(mEvents.join(", "), "PopupWindowShowing view");
  QStringList entries;
  for (QAction* action : menu->actions()) entries << action->text();
  EXPECT_EQ(entries.join(", "), "Members, Files");

  mEvents.clear();
  mView.ActionFor(mDock.Command(QStringLiteral("members")))->trigger();
  EXPECT_EQ(mEvents.join(", "), "CommandClick members=1");
  EXPECT_EQ(mDock.Command(QStringLiteral("view"))->CurrentEntry(),
            mDock.Command(QStringLiteral("members")));
}

}  // namespace
}  // namespace sv
