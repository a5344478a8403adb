#include <gtest/gtest.h>

#include "ViewHost.h"
#include "model/ModelFactory.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"
#include "ui/ImageList.h"

namespace sv::test {
namespace {

const QString kLibrary = QStringLiteral(R"(
definitions sv.test caption=Test view=pift
  Project image=project flags=r
    Namespace image=ns
      Class image=class
        Member image=member
    Leaf image=leaf
items
  Project Lib
    Namespace Shapes
      Class Circle
        Member Draw member access=Public
        Member Hide member access=Private
      Class List`1
    Leaf Readme filter=readme
)");

TEST(ProjectViewPopulationTest, ChildrenArriveWhenANodeOpensThroughItsPlaceholder) {
  ViewHost host(kLibrary);
  host.load();
  EXPECT_EQ(host.keys(), "+ Lib <Lib>\n   <Lib_dummy>\n");
  EXPECT_EQ(host.model.Provider()->GetItemsCalls(), 0) << "nothing is fetched before a node opens";

  QStringList populated;
  QObject::connect(&host.view, &ProjectView::ItemPopulated,
                   [&](std::shared_ptr<CodeItem> item, QString filter) {
                     populated << item->Name().value_or(QString()) + "=" + filter;
                   });
  host.expand("Lib");
  host.expand("Lib.Shapes");
  host.expand("Lib.Shapes.Circle");
  EXPECT_EQ(host.shown(),
            "- Lib\n"
            "  - Shapes\n"
            "    - Circle\n"
            "      Draw\n"
            "    + List\n"
            "  Readme\n")
      << "a leaf definition gets no expander, a generic name is cut at the grave accent, and a "
         "private member is dropped in comment mode";
  EXPECT_EQ(host.model.Provider()->LastFilter(),
            "IgnoreNamespaceIncludeFlag=true,scope=public,IncludeInherited=False");
  EXPECT_TRUE(populated.isEmpty()) << "no opened item has a relevant content filter";

  host.view.setFilter("lang=cs,");
  host.view.setShowInherited(true);
  host.view.setShowFriend(true);
  EXPECT_EQ(host.view.Filter(),
            "lang=cs,IgnoreNamespaceIncludeFlag=true,scope=public+friend,IncludeInherited=True");
  EXPECT_EQ(host.view.SpecificFilter(), "lang=cs,");
  EXPECT_EQ(host.reportedFailures(), 0);
}

TEST(ProjectViewPopulationTest, ShowPrivateRefreshesKeepingTheOpenPathAndTheSelection) {
  ViewHost host(kLibrary);
  host.load();
  host.expand("Lib");
  host.expand("Lib.Shapes");
  host.expand("Lib.Shapes.Circle");
  host.tree().userClick(host.node("Lib.Shapes.Circle"));

  host.view.dksProjectView()->userClick("ShowPrivate");
  EXPECT_TRUE(host.view.ShowPrivate());
  EXPECT_TRUE(host.model.Project()->ShowPrivateMembers());
  EXPECT_EQ(host.shown(),
            "- Lib\n"
            "  - Shapes\n"
            "    - Circle\n"
            "      Draw\n"
            "      Hide\n"
            "    + List\n"
            "  Readme\n");
  EXPECT_EQ(host.selected(), "Lib.Shapes.Circle");
  EXPECT_EQ(host.node("Lib.Shapes.Circle.Hide")->ForeColor(), 0x808080u) << "private is grey";
  EXPECT_EQ(host.node("Lib.Shapes.Circle.Draw")->ForeColor(), 0u);
  EXPECT_EQ(host.model.Provider()->LastFilter(),
            "IgnoreNamespaceIncludeFlag=true,scope=private+public+friend+protected,"
            "IncludeInherited=False");
  EXPECT_EQ(host.reportedFailures(), 0);
}

TEST(ProjectViewPopulationTest, RefreshOfTwoRootsKeepsTheLastAndContentFiltersAreAnnounced) {
  ViewHost host(R"(
definitions sv.test view=p
  Project flags=r
    Namespace
items
  Project LibA filter=a-files
    Namespace Alpha
  Project LibB
)");
  const auto defs = host.model.Definitions();
  QStringList populated;
  QObject::connect(&host.view, &ProjectView::ItemPopulated,
                   [&](std::shared_ptr<CodeItem> item, QString filter) {
                     populated << item->Name().value_or(QString()) + "=" + filter;
                   });
  host.view.LoadFromNamespaceRootItem(defs, host.model.Item("LibA"), true);
  host.view.LoadFromNamespaceRootItem(defs, host.model.Item("LibB"), false);
  EXPECT_EQ(host.shown(), "+ LibA\n+ LibB\n");
  host.expand("LibA");
  EXPECT_EQ(populated.join(","), "LibA=a-files");

  auto* dock = host.view.dksProjectView();
  EXPECT_TRUE(dock->Command("ShowPrivate")->Visible());
  EXPECT_FALSE(dock->Command("ShowInherited")->Visible()) << "the set offers only p";
  EXPECT_FALSE(dock->Command("ShowFriend")->Visible());
  EXPECT_FALSE(dock->Command("ShowProtected")->Visible());

  host.view.Refresh();
  EXPECT_EQ(host.shown(), "+ LibB\n") << "each root reload clears the tree";
  EXPECT_EQ(host.selected(), "LibB") << "with no selection kept the first node is selected";
  EXPECT_EQ(host.reportedFailures(), 0);
}

TEST(ProjectViewPopulationTest, GroupFoldersAreKeyedByParentAndDefinition) {
  ViewHost host(R"(
definitions sv.test view=pift
  Project flags=r
    Class image=class group=Types GroupedInComments
    Struct image=struct group=Types GroupedInComments
    Module image=module GroupedInSelection
items
  Project Lib
    Class Circle
    Class Square
    Struct Point
    Module Util
)");
  host.view.setFolderView(true);
  EXPECT_TRUE(host.view.Grouped()) << "FolderView is a second name of Grouped";
  host.load();
  host.expand("Lib");
  TreeDumpOptions options;
  options.keys = true;
  options.images = true;
  EXPECT_EQ(host.tree().Dump(options).toStdString(),
            "- Lib {project} <Lib>\n"
            "  + Types {Closed/Open} <Lib_Class>\n"
            "    Circle {class} <Lib.Circle>\n"
            "    Square {class} <Lib.Square>\n"
            "  + Types {Closed/Open} <Lib_Struct>\n"
            "    Point {struct} <Lib.Point>\n"
            "  Util {module} <Lib.Util>\n");

  host.view.setGrouped(false);
  EXPECT_FALSE(host.view.FolderView());
  host.view.Refresh();
  host.expand("Lib");
  EXPECT_EQ(host.shown(), "- Lib\n  Circle\n  Square\n  Point\n  Util\n");
  EXPECT_EQ(host.reportedFailures(), 0);
}

TEST(ProjectViewPopulationTest, ImagesShowAccessAndExclusionAndBoldShowsComments) {
  const auto addImages = [](ProjectView& view) {
    view.ImageList()->Add("project");
    view.ImageList()->Add("member", {}, "OVERLAY");
    view.ImageList()->Add("field");
  };
  ViewHost host(R"(
definitions sv.test view=pift
  Project image=project flags=r
    Member image=member
    Field image=field
tags
  ##SUMMARY name=Summary
  ##EXCLUDE name=Exclude
items
  Project Lib
    Member Draw member access=Public
      ##SUMMARY "Draws."
    Member Hide member access=Private
    Member Shared member access=Friend
    Member Guarded member access="Protected Friend"
    Member Gone member access=Public
      ##EXCLUDE
    Field Secret member access=Private
    Field Count member access=Public
)",
                false, addImages);
  host.view.setShowPrivate(true);
  host.load();
  host.expand("Lib");
  TreeDumpOptions options;
  options.images = true;
  EXPECT_EQ(host.tree().Dump(options).toStdString(),
            "- Lib {project}\n"
            "  *Draw {member}\n"
            "  Hide {member_private}\n"
            "  Shared {member_friend}\n"
            "  Guarded {member_protected}\n"
            "  *Gone {member_excluded}\n"
            "  Secret {field}\n"
            "  Count {field}\n")
      << "only images tagged OVERLAY get access variants; others fall back to the plain image";
  const ImageList& images = *host.view.ImageList();
  EXPECT_TRUE(images.Exists("project_excluded")) << "every image gets an excluded variant";
  EXPECT_FALSE(images.Exists("project_private"));
  EXPECT_EQ(images.Item("member_private").OverlayKey, "Private");
  EXPECT_EQ(images.Item("member_private").BaseKey, "member");

  // A comment added later shows after the highlight pass.
  auto comment = Model().NewTaggedComment();
  comment->setTagIdentifier("##SUMMARY");
  host.model.Item("Lib.Count")->TaggedComments()->Add(comment, comment->Id());
  host.view.HighlightCommentedNodes();
  EXPECT_TRUE(host.node("Lib.Count")->Bold());
  EXPECT_FALSE(host.node("Lib.Secret")->Bold());
  EXPECT_EQ(host.reportedFailures(), 0);
}

TEST(ProjectViewPopulationTest, SelectionModeShowsRootsInBoldAndOnlySelectableChildren) {
  const QString description = R"(
definitions sv.test view=pift
  Project flags=r
    Namespace flags=r
      Class Selectable=false
items
  Project Lib include exclude
    Namespace Shapes include exclude root
      Class Circle
    Namespace Tools include exclude root=false
      Class Pen qn=Lib.Shapes.Circle
)";
  ViewHost selection(description, true);
  selection.load();
  selection.expand("Lib");
  EXPECT_EQ(selection.keys(),
            "- [x] Lib <Lib>\n"
            "  [x] *Shapes <Lib.Shapes>\n"
            "  [x] Tools <Lib.Tools>\n")
      << "no placeholder when no child definition is selectable; the root item is bold";
  EXPECT_TRUE(selection.view.tvwProject()->CheckBoxes());

  ViewHost comments(description, false);
  comments.load();
  comments.expand("Lib");
  comments.expand("Lib.Shapes");
  comments.expand("Lib.Tools");
  EXPECT_EQ(comments.shown(), "- Lib\n  - Shapes\n    Circle\n  Tools\n")
      << "an item whose key is already in the tree gets no node";
  EXPECT_EQ(selection.reportedFailures() + comments.reportedFailures(), 0);
}

TEST(ProjectViewPopulationTest, AppNameShowsTheSharedSettingsOnTheToolbar) {
  ViewHost host(kLibrary);
  host.view.setGrouped(true);
  host.view.setShowFriend(true);
  host.view.setShowInherited(true);
  host.view.setAppName("ScrivaraTest");
  EXPECT_EQ(host.view.AppName(), "ScrivaraTest");
  auto* dock = host.view.dksProjectView();
  QStringList pressed;
  for (const char* key :
       {"AutoExpand", "ShowPrivate", "ShowFriend", "ShowProtected", "ShowInherited", "Grouped"})
    pressed << QStringLiteral("%1=%2").arg(key).arg(dock->Command(key)->Value());
  EXPECT_EQ(pressed.join(" "),
            "AutoExpand=0 ShowPrivate=0 ShowFriend=1 ShowProtected=0 ShowInherited=1 Grouped=1");

  dock->userClick("AutoExpand");
  EXPECT_TRUE(host.view.AutoExpandChildren());
  dock->userClick("Find");
  EXPECT_TRUE(dock->Band("FindBar")->Visible());
  dock->userClick("Find");
  EXPECT_FALSE(dock->Band("FindBar")->Visible());

  QStringList requests;
  QObject::connect(&host.view, &ProjectView::CopyCommentsRequested, [&] { requests << "Copy"; });
  QObject::connect(&host.view, &ProjectView::PasteCommentsRequested, [&] { requests << "Paste"; });
  QObject::connect(&host.view, &ProjectView::PropertiesRequested,
                   [&] { requests << "Properties"; });
  QObject::connect(&host.view, &ProjectView::AfterCommand, [&] { requests << "After"; });
  host.view.setPasteCommentsEnabled(false);
  EXPECT_FALSE(host.view.PasteCommentsEnabled());
  for (const char* key : {"Copy", "Paste", "Properties"}) dock->userClick(key);
  EXPECT_EQ(requests.join(","), "Copy,After,Properties,After") << "a disabled Paste is no click";

  host.view.HideEditButtons();
  for (const char* key : {"Copy", "Paste", "Previous", "Next", "Properties"})
    EXPECT_FALSE(dock->Command(key)->Visible()) << key;
  EXPECT_EQ(host.reportedFailures(), 0);
}

}  // namespace
}  // namespace sv::test
