// Comments carried between items by the clipboard, and the tree's marks following the editor.
#include <gtest/gtest.h>

#include "ProjectEditorFixture.h"
#include "codetree/ProjectView.h"
#include "codetree/UIHelpers.h"
#include "comments/CommentEditor.h"
#include "model/CodeItem.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"
#include "project/model/ProjectModel.h"
#include "ui/CheckBox.h"
#include "ui/Dock.h"
#include "ui/ExplorerBar.h"
#include "ui/Keys.h"
#include "ui/PropertyList.h"
#include "ui/TreeView.h"
#include "widgets/EBCheckBoxes.h"

namespace sv::test {
namespace {

const QString kCircleArea = QStringLiteral("Geometry~Shapes~Circle~Area");
const QString kCircleDraw = QStringLiteral("Geometry~Shapes~Circle~Draw");
const QString kSquareArea = QStringLiteral("Geometry~Shapes~Square~Area");

Dock& toolbar(const ProjectEditorFixture& f) {
  return *f.view().dksProjectView();
}

TEST(ProjectEditorCommentsTest, CopiedCommentsPasteOntoAnotherMemberOfTheSameKind) {
  ProjectEditorFixture f;
  f.click(kCircleArea);
  ASSERT_TRUE(toolbar(f).userClick("Copy"));
  EXPECT_TRUE(UIHelpers::Shared().HasCopiedComments());
  EXPECT_EQ(UIHelpers::Shared().CopiedItemTypeName(), "Method");
  EXPECT_EQ(UIHelpers::Shared().CopiedItemQualifiedName(), kCircleArea);
  // No pasting back onto the item just copied.
  EXPECT_EQ(f.copyPaste(), "Copy on, Paste off");
  EXPECT_FALSE(toolbar(f).userClick("Paste"));

  f.click(kSquareArea);
  EXPECT_FALSE(f.node(kSquareArea)->Bold());
  EXPECT_EQ(f.copyPaste(), "Copy on, Paste on");
  f.model.Project()->setDirty(false);
  f.wrapper.Take();
  ASSERT_TRUE(toolbar(f).userClick("Paste"));
  EXPECT_EQ(f.comments(kSquareArea), "##PARAM \"The radius.\" status=2\n");
  const auto pasted = f.model.Item(kSquareArea)->TaggedComments()->Item(1);
  EXPECT_NE(pasted->Id(), "m1");
  EXPECT_EQ(pasted->Item(), f.model.Item(kSquareArea));
  // The source keeps its own comment.
  EXPECT_EQ(f.comments(kCircleArea), "##PARAM \"The radius.\"\n");
  // The node is bold, the editor shows what was pasted, and the project has changed.
  EXPECT_TRUE(f.node(kSquareArea)->Bold());
  EXPECT_EQ(f.element(), kSquareArea.toStdString());
  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("other"));
  EXPECT_EQ(f.commentEditor().TagsList()->Dump().toStdString(),
            "- Existing Comments\n"
            "> Parameter = The radius.\n"
            "- Available to add\n"
            "  See Also = Click to add this tag... (add)\n"
            "  Parameter = Click to add this tag... (add)");
  EXPECT_TRUE(f.model.Project()->Dirty());
  // Pasting reloaded the editor inside the host's refresh lock; every toolbar command then
  // refreshes the command state inside one too.
  EXPECT_EQ(f.wrapper.Take(), "lock unlockabsolute lock unlock");
  EXPECT_EQ(f.wrapper.depth, 0);
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(ProjectEditorCommentsTest, PasteIsRefusedOntoOtherKindsAndFoldersCopyNothing) {
  ProjectEditorFixture f;
  f.click(kCircleArea);
  ASSERT_TRUE(toolbar(f).userClick("Copy"));

  // A class is another kind than the method copied.
  f.click("Geometry~Shapes~Square");
  EXPECT_EQ(f.copyPaste(), "Copy on, Paste off");
  EXPECT_FALSE(toolbar(f).userClick("Paste"));
  EXPECT_EQ(f.comments("Geometry~Shapes~Square"), "");

  // Copy on a folder finds no element: the clipboard keeps the method's comments.
  f.tree().userExpand(f.node("Geometry~Shapes~Square"));
  f.click("Geometry~Shapes~Square_SV:Method");
  EXPECT_EQ(f.copyPaste(), "Copy on, Paste off");
  ASSERT_TRUE(toolbar(f).userClick("Copy"));
  EXPECT_EQ(UIHelpers::Shared().CopiedItemQualifiedName(), kCircleArea);

  // Copying an item without comments empties the clipboard.
  f.click(kCircleDraw);
  EXPECT_EQ(f.copyPaste(), "Copy on, Paste on");
  ASSERT_TRUE(toolbar(f).userClick("Copy"));
  EXPECT_FALSE(UIHelpers::Shared().HasCopiedComments());
  f.click(kSquareArea);
  EXPECT_EQ(f.copyPaste(), "Copy on, Paste off");
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(ProjectEditorCommentsTest, TheFirstCommentMakesANodeBoldAndDeletingTheLastTakesItAway) {
  ProjectEditorFixture f;
  f.click(kCircleDraw);
  EXPECT_FALSE(f.node(kCircleDraw)->Bold());
  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("other"));
  PropertyList* list = f.commentEditor().TagsList();
  ASSERT_TRUE(list->userSelect("new:##PARAM"));
  f.TakeEvents();
  ASSERT_TRUE(list->userClickButton("AddButton"));
  EXPECT_TRUE(f.node(kCircleDraw)->Bold());
  EXPECT_EQ(f.TakeEvents(), "TaggedCommentAdded Geometry~Shapes~Circle~Draw ##PARAM");
  list->userType("How to draw it.");
  list->userPressKey(KeyCode::Return);
  EXPECT_EQ(f.TakeEvents(),
            "TaggedCommentChanged Geometry~Shapes~Circle~Draw ##PARAM \"How to draw it.\"");

  // Area has one comment; deleting it through the list leaves the node plain.
  f.click(kCircleArea);
  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("other"));
  ASSERT_TRUE(list->userSelect("m1"));
  f.TakeEvents();
  list->userPressKey(KeyCode::Delete);
  EXPECT_EQ(f.TakeEvents(), "TaggedCommentDeleted Geometry~Shapes~Circle~Area ##PARAM");
  EXPECT_FALSE(f.node(kCircleArea)->Bold());

  // A class with two comments stays bold when one goes.
  f.click("Geometry~Shapes~Circle");
  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("other"));
  ASSERT_TRUE(list->userSelect("c2"));
  list->userPressKey(KeyCode::Delete);
  EXPECT_TRUE(f.node("Geometry~Shapes~Circle")->Bold());
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(ProjectEditorCommentsTest, WithoutHighlightingTheEditorLeavesTheNodesAlone) {
  ProjectEditorFixture f;
  f.click(kCircleArea);
  f.view().setHighlightCommentedItems(false);
  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("other"));
  PropertyList* list = f.commentEditor().TagsList();
  ASSERT_TRUE(list->userSelect("m1"));
  list->userPressKey(KeyCode::Delete);
  ASSERT_TRUE(list->userSelect("new:##PARAM"));
  f.click(kCircleDraw);
  ASSERT_TRUE(list->userSelect("new:##PARAM"));
  f.TakeEvents();
  ASSERT_TRUE(list->userClickButton("AddButton"));
  EXPECT_EQ(f.TakeEvents(), "TaggedCommentAdded Geometry~Shapes~Circle~Draw ##PARAM");
  EXPECT_TRUE(f.node(kCircleArea)->Bold());
  EXPECT_FALSE(f.node(kCircleDraw)->Bold());
}

TEST(ProjectEditorCommentsTest, TickingTheExcludeFlagRedrawsTheNodesImage) {
  ProjectEditorFixture f;
  f.click("Geometry~Shapes~Square");
  EXPECT_EQ(f.node("Geometry~Shapes~Square")->Image(), "sv:class");
  CheckBox* exclude = f.commentEditor().CheckBoxes()->Item(1);
  ASSERT_EQ(exclude->Tag(), "##EXCLUDE");
  ASSERT_TRUE(exclude->userClick());
  EXPECT_EQ(f.node("Geometry~Shapes~Square")->Image(), "sv:class_excluded");
  EXPECT_TRUE(f.node("Geometry~Shapes~Square")->Bold());
  ASSERT_TRUE(exclude->userClick());
  EXPECT_EQ(f.node("Geometry~Shapes~Square")->Image(), "sv:class");
  EXPECT_FALSE(f.node("Geometry~Shapes~Square")->Bold());
}

}  // namespace
}  // namespace sv::test
