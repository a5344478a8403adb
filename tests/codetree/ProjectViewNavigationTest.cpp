#include <gtest/gtest.h>

#include "ViewHost.h"
#include "ui/Keys.h"

namespace sv::test {
namespace {

// Qualified names spell the path from the top with "~", as the code models name items.
const QString kTools = QStringLiteral(R"(
definitions sv.test view=pift
  Project flags=r
    Namespace
      Class
tags
  ##SUMMARY name=Summary
items
  Project Lib qn=Lib
    Namespace Shapes qn=Lib~Shapes
      Class Circle qn=Lib~Shapes~Circle
        ##SUMMARY "Round."
      Class Square qn=Lib~Shapes~Square
    Namespace Tools qn=Lib~Tools
      Class Pen qn=Lib~Tools~Pen
)");

struct NavigationHost : ViewHost {
  NavigationHost() : ViewHost(kTools) {
    QObject::connect(&view, &ProjectView::NodeClick,
                     [this](TreeNode* node) { clicks << node->Text(); });
    load();
  }
  void find(const QString& text) {
    auto* dock = view.dksProjectView();
    if (!dock->Band("FindBar")->Visible()) dock->userClick("Find");
    dock->userType("FindValue", text);
    dock->userPressKey("FindValue", KeyCode::Return);
  }
  QStringList clicks;
};

TEST(ProjectViewNavigationTest, TheWalkLoadsBranchesAsItMeetsThem) {
  NavigationHost host;
  host.tree().userClick(host.node("Lib"));
  host.view.NextItem(false);
  EXPECT_EQ(host.selected(), "Lib~Shapes") << "the placeholder was replaced on the way";
  host.view.dksProjectView()->userClick("Next");
  EXPECT_EQ(host.selected(), "Lib~Shapes~Square") << "Next skips the commented (bold) Circle";
  host.view.NextItem(false);
  host.view.NextItem(false);
  EXPECT_EQ(host.selected(), "Lib~Tools~Pen");
  EXPECT_FALSE(host.view.dksProjectView()->Command("Next")->Enabled()) << "the last node";
  host.view.NextItem(false);
  EXPECT_EQ(host.selected(), "Lib~Tools~Pen") << "at the end the selection stays";

  host.view.PreviousItem(true);
  EXPECT_EQ(host.selected(), "Lib~Tools");
  host.view.MoveToPreviousItem(true);
  EXPECT_EQ(host.selected(), "Lib~Shapes~Square");
  host.view.MoveToPreviousItem(false);
  EXPECT_EQ(host.selected(), "Lib~Shapes~Circle");
  EXPECT_EQ(host.clicks.join(","), "Lib,Shapes,Square,Tools,Pen,Tools,Square,Circle")
      << "the host follows every move through NodeClick";
  EXPECT_EQ(host.shown(), "+ Lib\n") << "walking loads but opens nothing";
  EXPECT_EQ(host.reportedFailures(), 0);
}

TEST(ProjectViewNavigationTest, FindSearchesUnloadedBranchesAndWrapsAround) {
  NavigationHost host;
  QStringList commands;
  QObject::connect(&host.view, &ProjectView::AfterCommand, [&] { commands << "AfterCommand"; });

  host.find("");
  EXPECT_EQ(host.services.message->Last(),
            "No search value|48|Please specify a value to search for");
  EXPECT_EQ(host.shown(), "+ Lib\n");

  host.find("PEN");
  EXPECT_EQ(host.selected(), "Lib~Tools~Pen") << "from the first node, through lazy branches";
  EXPECT_EQ(host.shown(), "+ Lib\n") << "opened branches close again";
  EXPECT_TRUE(host.tree().Redraw());
  EXPECT_EQ(commands.size(), 3) << "Find, then FindNow twice";

  host.tree().userClick(host.node("Lib~Shapes~Circle"));
  host.find("square");
  EXPECT_EQ(host.selected(), "Lib~Shapes~Square") << "the node after the selection";

  host.find("circle");
  EXPECT_EQ(host.selected(), "Lib~Shapes~Circle") << "past the end, from the top again";

  host.services.message->Clear();
  host.find("brush");
  EXPECT_EQ(host.services.message->Last(),
            "Find Complete|64|No more items were found matching the search criteria");
  EXPECT_EQ(host.services.message->Count(), 1);
  EXPECT_EQ(host.selected(), "Lib~Shapes~Circle");
  EXPECT_TRUE(host.tree().Redraw());
}

TEST(ProjectViewNavigationTest, SelectItemLoadsOnlyThePathToTheItem) {
  NavigationHost host;
  EXPECT_TRUE(host.view.SelectItem("Lib~Tools~Pen"));
  EXPECT_EQ(host.selected(), "Lib~Tools~Pen");
  EXPECT_EQ(host.keys(),
            "- Lib <Lib>\n"
            "  + Shapes <Lib~Shapes>\n"
            "     <Lib~Shapes_dummy>\n"
            "  - Tools <Lib~Tools>\n"
            "    Pen <Lib~Tools~Pen>\n");

  EXPECT_FALSE(host.view.SelectItem("Lib~Tools~Brush"));
  EXPECT_EQ(host.selected(), "Lib~Tools~Pen") << "a name not in the tree selects nothing";
  EXPECT_TRUE(host.view.SelectNearestItem("Lib~Tools~Brush"));
  EXPECT_EQ(host.selected(), "Lib~Tools");

  EXPECT_TRUE(host.view.SelectItem("Lib~Shapes~Circle:2")) << "the part after ':' is a variant";
  EXPECT_EQ(host.selected(), "Lib~Shapes~Circle");
  EXPECT_FALSE(host.view.SelectNearestItem("Other~Thing"));
  EXPECT_EQ(host.clicks.join(","), "Pen,Tools,Circle");
  EXPECT_EQ(host.view.CurrentRootItem(), host.model.Item("Lib"));
  EXPECT_EQ(host.reportedFailures(), 0);
}

TEST(ProjectViewNavigationTest, KeysAndTheTreesEventsReachTheHost) {
  NavigationHost host;
  QStringList events;
  QObject::connect(&host.view, &ProjectView::KeyUp,
                   [&](int* code, int) { events << QStringLiteral("KeyUp %1").arg(*code); });
  QObject::connect(&host.view, &ProjectView::Expand,
                   [&](TreeNode* node) { events << "Expand " + node->Text(); });
  host.tree().userClick(host.node("Lib"));
  host.tree().userPressKey(78, ShiftMask::Ctrl);
  EXPECT_EQ(events.join(", "), "") << "Ctrl+N is swallowed";
  host.tree().userPressKey(78);
  host.tree().userPressKey(KeyCode::Right);
  EXPECT_EQ(events.join(", "), "KeyUp 78, Expand Lib, KeyUp 39");

  host.view.setReverseCheck(true);
  host.view.setReverseCheckNode(host.node("Lib~Tools"));
  host.tree().userPressKey(KeyCode::Space);
  EXPECT_FALSE(host.node("Lib~Tools")->Checked()) << "the embedding feature's flip";
  EXPECT_FALSE(host.view.ReverseCheck());

  host.view.setAutoExpandChildren(true);
  host.tree().userClick(host.node("Lib~Shapes"));
  EXPECT_TRUE(host.node("Lib~Shapes")->Expanded()) << "AutoExpand opens a clicked node";
  EXPECT_TRUE(host.view.dksProjectView()->Command("Previous")->Enabled());
  host.tree().userClick(host.node("Lib"));
  EXPECT_FALSE(host.view.dksProjectView()->Command("Previous")->Enabled()) << "the first node";
  EXPECT_EQ(host.reportedFailures(), 0);
}

}  // namespace
}  // namespace sv::test
