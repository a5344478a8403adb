#include "studio/CommentEditorPane.h"

#include <gtest/gtest.h>

#include <QTest>

#include "StudioWindowFixture.h"
#include "comments/CommentEditor.h"
#include "studio/CheckBoxRenderer.h"
#include "studio/ExplorerBarRenderer.h"
#include "studio/HtmlEditorRenderer.h"
#include "studio/MainWindow.h"
#include "studio/ProjectEditorView.h"
#include "studio/PropertyListRenderer.h"
#include "ui/ExplorerBar.h"

namespace sv {
namespace {

using test::StudioWindowFixture;

class CommentEditorPaneTest : public StudioWindowFixture {
 protected:
  CommentEditorPane& pane() const { return *mWindow->EditorView()->Comments(); }
  // What the right-hand side shows, in short.
  std::string page() const {
    QWidget* current = pane().CurrentPage();
    if (auto* html = qobject_cast<HtmlEditorRenderer*>(current))
      return "html: " + html->toPlainText().toStdString();
    if (auto* list = qobject_cast<PropertyListRenderer*>(current))
      return "list of " + std::to_string(list->RowsView()->topLevelItemCount()) + " rows";
    return "hint";
  }
  QStringList flagBoxes() const {
    QStringList captions;
    for (CheckBoxRenderer* box : pane().Bar()->findChildren<CheckBoxRenderer*>())
      if (box->isVisible()) captions << box->Box()->Caption();
    return captions;
  }
  CheckBoxRenderer* flagBox(const QString& caption) const {
    for (CheckBoxRenderer* box : pane().Bar()->findChildren<CheckBoxRenderer*>())
      if (box->isVisible() && box->Box()->Caption() == caption) return box;
    return nullptr;
  }
  void clickBarItem(const QString& key) {
    ExplorerBarRenderer& bar = *pane().Bar();
    QTreeWidgetItem* row = bar.ItemFor(bar.Bar()->FindItem(key));
    ASSERT_NE(row, nullptr) << key.toStdString();
    QTest::mouseClick(bar.viewport(), Qt::LeftButton, {}, bar.visualItemRect(row).center());
    Settle();
  }

  void SetUp() override {
    mWindow = NewWindow();
    OpenSample(*mWindow);
  }

  std::unique_ptr<MainWindow> mWindow;
};

TEST_F(CommentEditorPaneTest, ThePaneFollowsThePageTheEditorShows) {
  EXPECT_EQ(page(), "hint");
  EXPECT_FALSE(pane().Bar()->isVisible()) << "no element, no bar";

  ClickNode(*mWindow, QStringLiteral("geometry~geometry~shapes~Circle"));
  EXPECT_TRUE(pane().Bar()->isVisible());
  EXPECT_EQ(page(), "html: A circle of a given radius around its origin.");
  EXPECT_EQ(flagBoxes().join(", "), "Exclude, Internal, Obsolete, Preliminary");
  CheckBoxRenderer* obsolete = flagBox(QStringLiteral("Obsolete"));
  ASSERT_NE(obsolete, nullptr);
  // On the box itself: the widget is wider than box and caption.
  QTest::mouseClick(obsolete, Qt::LeftButton, {}, QPoint(6, obsolete->height() / 2));
  Settle();
  EXPECT_TRUE(obsolete->isChecked());
  EXPECT_EQ(CommentsOf(*mWindow, QStringLiteral("geometry~geometry~shapes~Circle")),
            "##SUMMARY: A circle of a given radius around its origin.\n##OBSOLETE: ");

  clickBarItem(QStringLiteral("other"));
  EXPECT_EQ(page().rfind("list of ", 0), 0u) << page();
  clickBarItem(QStringLiteral("##REMARKS"));
  EXPECT_EQ(page(), "html: ");

  // The page the author chose stays for the next element, in the same designer.
  ClickNode(*mWindow, QStringLiteral("geometry~geometry~shapes~Shape"));
  EXPECT_EQ(page(),
            "html: Shapes are moved with moveBy; derived classes hear of it through "
            "originChanged.");
}

}  // namespace
}  // namespace sv
