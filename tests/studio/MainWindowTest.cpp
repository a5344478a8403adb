#include "studio/MainWindow.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTest>

#include "StudioWindowFixture.h"
#include "foundation/MessageBox.h"
#include "studio/RecentFiles.h"
#include "ui/TreeNode.h"

namespace sv {
namespace {

using test::StudioWindowFixture;

const QString kPolygon = QStringLiteral("geometry~geometry~shapes~Polygon");

class MainWindowTest : public StudioWindowFixture {};

TEST_F(MainWindowTest, ASummaryTypedForAClassIsSavedWithCtrlSAndComesBackBold) {
  auto window = NewWindow();
  OpenSample(*window);
  EXPECT_TRUE(window->windowTitle().startsWith("geometry.svproj - "))
      << window->windowTitle().toStdString();
  EXPECT_EQ(RecentFiles::List().value(0), SamplePath());

  TreeNode* polygon = ClickNode(*window, kPolygon);
  ASSERT_NE(polygon, nullptr);
  EXPECT_FALSE(polygon->Bold());
  TypeIntoPage(*window, QStringLiteral("A closed shape of straight sides."));
  EXPECT_EQ(CommentsOf(*window, kPolygon), "##SUMMARY: A closed shape of straight sides.");
  EXPECT_TRUE(ShownBold(*window, kPolygon)) << "the first comment makes the node bold";
  EXPECT_TRUE(window->windowTitle().startsWith("geometry.svproj* - "));

  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(window->windowTitle().startsWith("geometry.svproj - "))
      << window->windowTitle().toStdString();
  EXPECT_EQ(services.message->Count(), 0) << services.message->Last().toStdString();

  auto reopened = NewWindow();
  OpenSample(*reopened);
  EXPECT_EQ(CommentsOf(*reopened, kPolygon), "##SUMMARY: A closed shape of straight sides.");
  ClickNode(*reopened, kPolygon);
  EXPECT_TRUE(ShownBold(*reopened, kPolygon));
  // What the sample held before is still there.
  EXPECT_EQ(CommentsOf(*reopened, QStringLiteral("geometry~geometry~shapes~Circle")),
            "##SUMMARY: A circle of a given radius around its origin.");
}

TEST_F(MainWindowTest, UnsavedChangesAreAskedAboutAndCancelKeepsTheWindow) {
  auto window = NewWindow();
  OpenSample(*window);
  window->close();
  EXPECT_FALSE(window->isVisible()) << "nothing unsaved: the window closes without a question";
  EXPECT_EQ(services.message->Count(), 0);

  window = NewWindow();
  OpenSample(*window);
  ClickNode(*window, kPolygon);
  TypeIntoPage(*window, QStringLiteral("Draft"));
  // Moving on to another item leaves the change unsaved.
  ClickNode(*window, QStringLiteral("geometry~geometry~shapes~Circle"));
  EXPECT_TRUE(window->windowTitle().startsWith("geometry.svproj* - "));
  services.message->Script({Mb::IdCancel});
  window->close();
  ASSERT_EQ(services.message->Count(), 1);
  EXPECT_EQ(services.message->Boxes().back().flags & Mb::ButtonMask, Mb::YesNoCancel);
  EXPECT_TRUE(
      services.message->Boxes().back().text.startsWith("geometry.svproj has unsaved changes"));
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(window->windowTitle().startsWith("geometry.svproj* - "));
  EXPECT_EQ(CommentsOf(*window, kPolygon), "##SUMMARY: Draft");

  // No discards: the file keeps what it had.
  services.message->Script({Mb::IdNo});
  window->close();
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(test::TempSettings::Text(SamplePath()).contains("Draft"));

  // Yes saves before another project replaces this one.
  window = NewWindow();
  OpenSample(*window);
  ClickNode(*window, kPolygon);
  TypeIntoPage(*window, QStringLiteral("Kept"));
  services.message->Script({Mb::IdYes});
  EXPECT_TRUE(window->OpenPath(SamplePath()));
  EXPECT_EQ(CommentsOf(*window, kPolygon), "##SUMMARY: Kept");
  EXPECT_FALSE(window->IsDirty());
}

TEST_F(MainWindowTest, AnXmlFolderOpensAsANewProjectThatSaveAsKeepsWithItsCode) {
  auto window = NewWindow();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  services.picker->Script(QStringLiteral(SV_SAMPLE_XML_DIR));
  QTest::keyClick(window.get(), Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_NE(window->Project(), nullptr) << services.message->Last().toStdString();
  EXPECT_TRUE(window->windowTitle().startsWith("geometry (not saved) - "))
      << window->windowTitle().toStdString();

  ClickNode(*window, kPolygon);
  TypeIntoPage(*window, QStringLiteral("Many sides."));
  EXPECT_TRUE(window->windowTitle().startsWith("geometry (not saved)* - "));
  // Ctrl+S asks where the new project goes; the suffix is added.
  const QString chosen = Folder() + QStringLiteral("/elsewhere/mine");
  ASSERT_TRUE(QDir().mkpath(Folder() + QStringLiteral("/elsewhere")));
  services.picker->Script(chosen);
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(services.picker->Requests().last().section('|', 0, 0), "Save");
  EXPECT_TRUE(window->windowTitle().startsWith("mine.svproj - "))
      << window->windowTitle().toStdString();

  auto reopened = NewWindow();
  ASSERT_TRUE(reopened->OpenPath(chosen + QStringLiteral(".svproj")))
      << services.message->Last().toStdString();
  ClickNode(*reopened, kPolygon);
  EXPECT_EQ(CommentsOf(*reopened, kPolygon), "##SUMMARY: Many sides.");
  EXPECT_TRUE(ShownBold(*reopened, kPolygon));
}

TEST_F(MainWindowTest, AMalformedProjectIsReportedByLineAndTheOpenProjectStays) {
  const QString broken = Folder() + QStringLiteral("/broken.svproj");
  test::TempSettings::Write(broken,
                            "<?xml version=\"1.0\"?>\n"
                            "<ScrivaraProject version=\"1.0\">\n"
                            "  <Comments>\n"
                            "    <Item name=\"a\"></Comment>\n"
                            "</ScrivaraProject>\n");
  auto window = NewWindow();
  OpenSample(*window);
  EXPECT_FALSE(window->OpenPath(broken));
  ASSERT_EQ(services.message->Count(), 1);
  const QString text = services.message->Boxes().back().text;
  EXPECT_TRUE(text.contains(broken + QStringLiteral(":4:"))) << text.toStdString();
  EXPECT_EQ(services.message->Boxes().back().flags & Mb::IconMask, Mb::Critical);
  EXPECT_TRUE(window->windowTitle().startsWith("geometry.svproj - "));
  EXPECT_EQ(RecentFiles::List(), QStringList{SamplePath()});
}

}  // namespace
}  // namespace sv
