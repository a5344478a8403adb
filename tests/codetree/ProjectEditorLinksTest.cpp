// Links inside comments: pages of the project select their item (and page layout), bookmarks
// and unknown names explain themselves, anything else goes to the browser.
#include <gtest/gtest.h>

#include "ProjectEditorFixture.h"
#include "comments/CommentEditor.h"
#include "ui/ExplorerBar.h"
#include "ui/TreeView.h"

namespace sv::test {
namespace {

// A link clicked in a rendered comment, as the page editor reports it.
void follow(ProjectEditorFixture& f, const char* hRef) {
  emit f.commentEditor().HyperlinkClick(QString::fromUtf8(hRef));
}

std::string selectedPage(const ProjectEditorFixture& f) {
  const ExplorerBarItem* item = f.commentEditor().eb()->SelectedItem();
  return item ? item->Key().toStdString() : std::string("(none)");
}

TEST(ProjectEditorLinksTest, LinksToPagesSelectTheirItemAndPageLayout) {
  ProjectEditorFixture f;
  f.click("Geometry~Shapes~Square");

  // The item's main page: the first layout for its kind.
  follow(f, "file:///home/ann/out/Geometry~Shapes~Circle.html");
  EXPECT_EQ(f.selected(), "Geometry~Shapes~Circle");
  EXPECT_EQ(f.element(), "Geometry~Shapes~Circle");
  EXPECT_EQ(selectedPage(f), "inplaceedit:Standard");

  // "_members" is no part of a name: the Circle's page of the layout that writes it.
  f.click("Geometry~Shapes~Square");
  follow(f, "file:///home/ann/out/Geometry~Shapes~Circle_members.html");
  EXPECT_EQ(f.selected(), "Geometry~Shapes~Circle");
  EXPECT_EQ(selectedPage(f), "inplaceedit:Members");

  // A method's page of a layout for methods; blanks arrive as "%20".
  follow(f, "file:///home/ann/out/Geometry~Shapes~Circle~Area_syntax.html");
  EXPECT_EQ(f.selected(), "Geometry~Shapes~Circle~Area");
  EXPECT_EQ(selectedPage(f), "inplaceedit:Syntax");
  follow(f, "file:///home/ann/out/Geometry~Shapes~Unit%20Circle.html");
  EXPECT_EQ(f.selected(), "Geometry~Shapes~Unit Circle");
  EXPECT_EQ(f.element(), "Geometry~Shapes~Unit Circle");

  // A suffix no layout writes selects the item and leaves the page alone.
  f.click("Geometry~Shapes~Circle");
  f.commentEditor().eb()->userClickItem("other");
  follow(f, "file:///home/ann/out/Geometry~Shapes~Square_history.html");
  EXPECT_EQ(f.selected(), "Geometry~Shapes~Square");
  EXPECT_EQ(selectedPage(f), "other");

  // "_namespace" belongs to a namespace's name.
  follow(f, "file:///home/ann/out/Geometry~Tools_namespace.html");
  EXPECT_EQ(f.selected(), "Geometry~Tools_namespace");
  EXPECT_EQ(f.services.message->Count(), 0);
  EXPECT_TRUE(f.services.shell->Opened().isEmpty());
  EXPECT_EQ(f.wrapper.depth, 0);
}

TEST(ProjectEditorLinksTest, BookmarksAndForeignNamesExplainThemselvesAndURLsOpenOutside) {
  ProjectEditorFixture f;
  f.editor.setAppName("Scrivara Studio");
  f.click("Geometry~Shapes~Square");

  follow(f, "file:///home/ann/out/#");
  EXPECT_EQ(f.services.message->Last(), "Scrivara Studio|64|This hyperlink shows a popup bubble");
  follow(f, "file:///home/ann/out/#x");
  EXPECT_EQ(f.services.message->Last(),
            "Scrivara Studio|64|This hyperlink navigates to a bookmark in this topic (#x)");

  // A class "Circle" exists, yet a link to its "_namespace" page is no link to the class.
  follow(f, "file:///home/ann/out/Geometry~Shapes~Circle_namespace.html");
  EXPECT_EQ(f.services.message->Last(),
            "Scrivara Studio|64|Could not navigate this link as it appears to point to an item "
            "outside of this project (Geometry~Shapes~Circle_namespace)");
  // The name shown is the one tried last: the layout suffix is cut off.
  follow(f, "file:///home/ann/out/Other~Lib~Thing_members.html");
  EXPECT_EQ(f.services.message->Last(),
            "Scrivara Studio|64|Could not navigate this link as it appears to point to an item "
            "outside of this project (Other~Lib~Thing)");
  EXPECT_EQ(f.selected(), "Geometry~Shapes~Square");
  EXPECT_EQ(f.services.message->Count(), 4);

  // A folder link is nothing to go to.
  follow(f, "file:///home/ann/out/");
  EXPECT_EQ(f.services.message->Count(), 4);
  EXPECT_EQ(f.selected(), "Geometry~Shapes~Square");

  follow(f, "https://example.org/shapes%20guide.html#circles");
  EXPECT_EQ(f.services.shell->Opened().join(',').toStdString(),
            "https://example.org/shapes guide.html#circles");
  EXPECT_EQ(f.services.message->Count(), 4);
}

}  // namespace
}  // namespace sv::test
