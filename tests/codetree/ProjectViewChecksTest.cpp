#include <gtest/gtest.h>

#include "ViewHost.h"

namespace sv::test {
namespace {

const QString kShapes = QStringLiteral(R"(
definitions sv.test view=pift
  Project flags=r
    Namespace flags=r
      Class group=Classes GroupedInSelection
      Enum CanExclude=false
items
  Project Lib include exclude root=false
    Namespace Shapes include exclude root=false
      Class Circle include exclude access=PUBLIC
      Class Square include exclude access=Private
      Enum Color include exclude
    Namespace Tools include exclude root=false
      Class Pen include exclude
)");

std::string flags(const ViewHost& host, const QString& qualifiedName) {
  const auto item = host.model.Item(qualifiedName);
  return std::string(item->IncludeFlag().value_or(false) ? "I" : "-") +
         (item->ExcludeFlag().value_or(false) ? "X" : "-");
}

TEST(ProjectViewChecksTest, AGroupFolderFollowsItsChildren) {
  ViewHost host(kShapes, true);
  host.view.setGrouped(true);
  host.load();
  host.expand("Lib");
  host.expand("Lib.Shapes");
  host.expand("Lib.Shapes_Class");
  EXPECT_EQ(host.shown(),
            "- [x] Lib\n"
            "  - [x] Shapes\n"
            "    - [x] Classes\n"
            "      [x] Circle\n"
            "      [x] Square\n"
            "    [x] Color\n"
            "  + [x] Tools\n");
  EXPECT_EQ(flags(host, "Lib.Shapes.Circle"), "I-") << "loading writes the flags of each tick";

  host.toggle("Lib.Shapes.Circle");
  EXPECT_TRUE(host.node("Lib.Shapes_Class")->Checked()) << "Square is still ticked";
  EXPECT_EQ(host.exclusions(), "Lib.Shapes.Circle");
  EXPECT_EQ(flags(host, "Lib.Shapes.Circle"), "-X");

  host.toggle("Lib.Shapes.Square");
  EXPECT_FALSE(host.node("Lib.Shapes_Class")->Checked()) << "the last ticked child went";
  EXPECT_EQ(host.exclusions(), "Lib.Shapes.Circle,Lib.Shapes.Square");

  host.toggle("Lib.Shapes.Circle");
  EXPECT_TRUE(host.node("Lib.Shapes_Class")->Checked()) << "a ticked child ticks its folder";
  EXPECT_EQ(host.exclusions(), "Lib.Shapes.Square");

  host.toggle("Lib.Shapes_Class");
  EXPECT_EQ(host.shown(),
            "- [x] Lib\n"
            "  - [x] Shapes\n"
            "    - [ ] Classes\n"
            "      [ ] Circle\n"
            "      [ ] Square\n"
            "    [x] Color\n"
            "  + [x] Tools\n");
  EXPECT_EQ(host.exclusions(), "Lib.Shapes.Square,Lib.Shapes.Circle");
  EXPECT_EQ(host.reportedFailures(), 0);
}

TEST(ProjectViewChecksTest, ItemParentsCoverTheirBranchAndComeBackForOneTickedChild) {
  ViewHost host(kShapes, true);
  host.load();
  host.expand("Lib");
  host.expand("Lib.Shapes");
  QStringList events;
  QObject::connect(&host.view, &ProjectView::NodeCheck,
                   [&](TreeNode* node) { events << "NodeCheck " + node->Text(); });
  QObject::connect(&host.view, &ProjectView::Change, [&] { events << "Change"; });

  host.toggle("Lib.Shapes");
  EXPECT_EQ(events.join(", "), "NodeCheck Shapes, Change");
  EXPECT_EQ(host.shown(),
            "- [x] Lib\n"
            "  - [ ] Shapes\n"
            "    [ ] Circle\n"
            "    [ ] Square\n"
            "    [x] Color\n"
            "  + [x] Tools\n")
      << "a definition that cannot be excluded stays ticked";
  EXPECT_EQ(host.exclusions(), "Lib.Shapes") << "the parent's entry covers its children";
  EXPECT_EQ(flags(host, "Lib.Shapes.Circle"), "-X");

  host.toggle("Lib.Shapes.Color");
  EXPECT_TRUE(host.node("Lib.Shapes.Color")->Checked()) << "it cannot be unticked";
  EXPECT_EQ(host.exclusions(), "Lib.Shapes");

  host.toggle("Lib.Shapes.Circle");
  EXPECT_EQ(host.shown(),
            "- [x] Lib\n"
            "  - [x] Shapes\n"
            "    [x] Circle\n"
            "    [ ] Square\n"
            "    [x] Color\n"
            "  + [x] Tools\n");
  EXPECT_EQ(host.exclusions(), "Lib.Shapes.Square,Lib.Shapes.Color")
      << "the parent comes back with its other children excluded";
  EXPECT_EQ(flags(host, "Lib.Shapes"), "I-");
  EXPECT_EQ(flags(host, "Lib.Shapes.Square"), "-X");
  EXPECT_EQ(flags(host, "Lib.Shapes.Circle"), "I-");
  EXPECT_EQ(host.reportedFailures(), 0);
}

TEST(ProjectViewChecksTest, ExclusionsDecideInitialTicksAndCheckAllClearsThem) {
  ViewHost host(kShapes, true);
  host.view.Exclusions()->Add("Lib", "Lib");
  host.view.Exclusions()->Add("Lib.Tools", "Lib.Tools");
  host.load();
  host.expand("Lib");
  EXPECT_EQ(host.shown(), "- [ ] Lib\n  + [ ] Shapes\n  + [ ] Tools\n")
      << "children of an unticked parent load unticked";
  EXPECT_EQ(flags(host, "Lib.Shapes"), "-X");

  host.view.CheckAll();
  EXPECT_EQ(host.exclusions(), "") << "root keys go too";
  host.expand("Lib.Tools");
  EXPECT_EQ(host.shown(), "- [x] Lib\n  + [x] Shapes\n  - [x] Tools\n    [x] Pen\n");

  host.view.UnCheckAll();
  EXPECT_EQ(host.shown(), "- [x] Lib\n  + [ ] Shapes\n  - [ ] Tools\n    [ ] Pen\n")
      << "the top nodes stay ticked";
  EXPECT_EQ(host.exclusions(), "Lib.Shapes,Lib.Tools");

  ViewHost autoExclude(kShapes, true);
  autoExclude.view.setAutoExclude(true);
  autoExclude.view.Exclusions()->Add("Lib.Tools", "Lib.Tools");
  autoExclude.load();
  autoExclude.expand("Lib");
  EXPECT_EQ(autoExclude.shown(), "- [x] Lib\n  + [x] Shapes\n") << "excluded items get no node";
  EXPECT_EQ(host.reportedFailures() + autoExclude.reportedFailures(), 0);
}

TEST(ProjectViewChecksTest, RootsAndAccessTicks) {
  ViewHost host(kShapes, true);
  host.view.setGrouped(true);
  host.load();
  host.expand("Lib");
  host.expand("Lib.Shapes");
  TreeNode* shapes = host.node("Lib.Shapes");
  TreeNode* tools = host.node("Lib.Tools");

  EXPECT_TRUE(host.view.CanSetRoot(shapes));
  EXPECT_FALSE(host.view.CanSetRoot(host.node("Lib.Shapes_Class"))) << "a folder";
  EXPECT_FALSE(host.view.CanSetRoot(host.node("Lib.Shapes.Circle"))) << "no r flag";

  host.view.SetRoot(shapes, true);
  EXPECT_TRUE(shapes->Bold());
  EXPECT_EQ(host.model.Item("Lib.Shapes")->RootFlag(), true);
  host.view.SetRoot(tools, true);
  EXPECT_FALSE(shapes->Bold()) << "one root among siblings";
  EXPECT_EQ(host.model.Item("Lib.Shapes")->RootFlag(), false);
  EXPECT_TRUE(tools->Bold());
  host.view.SetRoot(host.node("Lib.Shapes.Circle"), true);
  EXPECT_FALSE(host.node("Lib.Shapes.Circle")->Bold()) << "no r flag: nothing changes";
  EXPECT_TRUE(tools->Bold());

  host.view.CheckByAccess("Public");
  EXPECT_EQ(host.shown(),
            "- [x] Lib\n"
            "  - [x] Shapes\n"
            "    + [x] Classes\n"
            "    [x] Color\n"
            "  + [x] *Tools\n");
  EXPECT_TRUE(host.node("Lib.Shapes.Circle")->Checked()) << "PUBLIC matches Public";
  EXPECT_FALSE(host.node("Lib.Shapes.Square")->Checked());
  EXPECT_EQ(host.exclusions(), "Lib.Shapes.Square");
  EXPECT_EQ(host.reportedFailures(), 0);
}

TEST(ProjectViewChecksTest, CommentModeTicksLeaveTheModelAlone) {
  ViewHost host(kShapes, false);
  host.load();
  host.expand("Lib");
  host.view.setIsNodeChecked(host.node("Lib.Shapes"), false);
  host.view.NodeChecked(host.node("Lib.Shapes"));
  EXPECT_EQ(host.exclusions(), "");
  EXPECT_EQ(flags(host, "Lib.Shapes"), "IX") << "the flags stay as the model had them";
  EXPECT_FALSE(host.view.IsNodeChecked(host.node("Lib.Shapes")));
  EXPECT_EQ(host.reportedFailures(), 0);
}

}  // namespace
}  // namespace sv::test
