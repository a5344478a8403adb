// How comments enter and leave an element: the list's buttons and keys, flags, tombstones, Dirty.
#include <gtest/gtest.h>

#include "EditorFixture.h"
#include "model/CodeItem.h"
#include "model/ModelFactory.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"
#include "project/core/TagDefinitionSet.h"
#include "ui/CheckBox.h"
#include "ui/Dock.h"
#include "ui/ExplorerBar.h"
#include "ui/Keys.h"
#include "ui/PropertyList.h"
#include "widgets/EBCheckBoxes.h"

namespace sv::test {
namespace {

TEST(CommentEditorRoadsTest, AddingFromTheListEditsTheNewRowAndTypingMakesItDirty) {
  EditorFixture f;
  f.Load("Geometry.Shapes.Circle.Area", "SV:Method");
  f.editor.eb()->userClickItem("other");
  PropertyList* list = f.editor.TagsList();
  ASSERT_TRUE(list->userSelect("new:##EXCEPTION"));
  EXPECT_TRUE(list->Button("AddButton").Visible);
  f.TakeEvents();

  ASSERT_TRUE(list->userClickButton("AddButton"));
  // The refresh after the add clears Dirty; the first typed change sets it again.
  EXPECT_EQ(f.TakeEvents(),
            "TaggedCommentAdded Area ##EXCEPTION status=2\n"
            "DirtyStateChanged 1\n"
            "DirtyStateChanged 0");
  EXPECT_EQ(f.List(),
            "- Existing Comments\n"
            "  Parameter = The radius.\n"
            "> Exception =  [editing: ]\n"
            "- Available to add\n"
            "  Parameter = Click to add this tag... (add)\n"
            "  See Also = Click to add this tag... (add)\n"
            "  Exception = Click to add this tag... (add)");
  list->userType("Throws when the radius is negative.");
  list->userPressKey(KeyCode::Return);
  EXPECT_EQ(f.TakeEvents(),
            "TaggedCommentChanged Area ##EXCEPTION \"Throws when the radius is negative.\"\n"
            "DirtyStateChanged 1");
  EXPECT_EQ(f.Comments("Geometry.Shapes.Circle.Area"),
            "##PARAM \"The radius.\"\n"
            "##EXCEPTION \"Throws when the radius is negative.\" status=2 xml=exception\n");
  EXPECT_EQ(list->RedrawLockCount(), 0);

  // A double click and Return on an addable row add as the button does.
  ASSERT_TRUE(list->userDoubleClick("new:##SEEALSO"));
  ASSERT_TRUE(list->userSelect("new:##PARAM"));
  list->userPressKey(KeyCode::Return);
  EXPECT_EQ(f.Comments("Geometry.Shapes.Circle.Area"),
            "##PARAM \"The radius.\"\n"
            "##EXCEPTION \"Throws when the radius is negative.\" status=2 xml=exception\n"
            "##SEEALSO status=2 xml=seealso\n"
            "##PARAM status=2 xml=param\n");
}

TEST(CommentEditorRoadsTest, DeletingKeepsTombstonesOfStoredCommentsOnlyWhenAsked) {
  EditorFixture f;
  f.editor.setKeepTombstones(true);
  f.Load("Geometry.Shapes.Circle", "SV:Class");
  f.editor.eb()->userClickItem("other");
  PropertyList* list = f.editor.TagsList();
  ASSERT_TRUE(list->userSelect("c2"));
  f.TakeEvents();

  list->userPressKey(KeyCode::Delete);
  // The only comment under its heading: the selection moves up to the heading.
  EXPECT_EQ(f.List(),
            "> - Existing Comments\n"
            "- Available to add\n"
            "  See Also = Click to add this tag... (add)");
  EXPECT_EQ(f.TakeEvents(),
            "TaggedCommentDeleted Circle ##SEEALSO key=Id\n"
            "DirtyStateChanged 1");
  EXPECT_EQ(f.Comments("Geometry.Shapes.Circle"),
            "##SUMMARY \"A round shape.\"\n"
            "##SEEALSO Square status=3\n"
            "##NOTE \"Not listed in XML mode.\"\n");
  ASSERT_NE(f.editor.GetTaggedCommentByKey("c2"), nullptr);
  EXPECT_EQ(f.editor.GetTaggedCommentByKey("C2"), nullptr) << "ids compare case-sensitively";
  EXPECT_EQ(f.editor.TaggedComments()->UnDeletedCount(), 2);
  EXPECT_EQ(list->RedrawLockCount(), 0);

  // A comment that was never stored leaves nothing behind.
  list->userSelect("new:##SEEALSO");
  list->userClickButton("AddButton");
  const QString id = list->SelectedItem()->Key();
  list->userPressKey(KeyCode::Escape);
  list->userClickButton("DeleteButton");
  EXPECT_EQ(f.editor.GetTaggedCommentByKey(id), nullptr);

  // Without tombstones a stored comment goes at once.
  f.editor.setKeepTombstones(false);
  f.editor.DeleteCommentItem("c3");
  EXPECT_NE(f.editor.GetTaggedCommentByKey("c3"), nullptr) << "a comment without a row stays";
  const auto circle = f.model.Item("Geometry.Shapes.Circle");
  f.editor.DeleteTaggedComment(circle, f.editor.GetTaggedCommentByKey("c3"));
  f.editor.DeleteTaggedComment(circle, f.editor.GetTaggedCommentByKey("c1"));
  EXPECT_EQ(f.Comments("Geometry.Shapes.Circle"), "##SEEALSO Square status=3\n");
  EXPECT_FALSE(f.editor.eb()->FindItem("##SUMMARY")->Ticked());
  EXPECT_EQ(f.editor.eb()->FindItem("##SUMMARY")->Image(), "summary");

  // Delete with no row selected tells the author; nothing changes.
  list->setSelectedItem(nullptr);
  list->userPressKey(KeyCode::Delete);
  EXPECT_EQ(f.services.message->Last(),
            "Scrivara|48|Please select a tag which exists in the active code element");
  EXPECT_EQ(f.Comments("Geometry.Shapes.Circle"), "##SEEALSO Square status=3\n");
}

TEST(CommentEditorRoadsTest, FlagsAddAndDeleteCommentsFromBoxesAndToolbar) {
  EditorFixture f;
  f.editor.setKeepTombstones(true);
  f.editor.setShowCombo(true);
  f.Load("Geometry.Shapes.Square", "SV:Class");
  f.TakeEvents();
  CheckBox* exclude = f.editor.CheckBoxes()->Item(1);
  ASSERT_EQ(exclude->Tag(), "##EXCLUDE");

  ASSERT_TRUE(exclude->userClick());
  EXPECT_EQ(f.TakeEvents(),
            "TaggedCommentDeleted Square ##EXCLUDE key=Id\n"
            "DirtyStateChanged 1\n"
            "UpdateItemImage SV:Class Square");
  EXPECT_EQ(f.Toolbar().find("flag:##EXCLUDE=1"), std::string::npos);
  EXPECT_NE(f.Toolbar().find("Flags {flags}"), std::string::npos);

  // Ticking from the toolbar writes the box and adds a new comment after the tombstone.
  ASSERT_TRUE(f.editor.DockCommentTypes()->userClick("flag:##EXCLUDE"));
  EXPECT_EQ(exclude->Value(), 1);
  EXPECT_EQ(f.TakeEvents(),
            "TaggedCommentAdded Square ##EXCLUDE status=2\n"
            "UpdateItemImage SV:Class Square");
  EXPECT_NE(f.Toolbar().find("Flags {flags_ticked}"), std::string::npos);

  // Clearing it again finds the tombstone first and deletes that; the live comment stays.
  ASSERT_TRUE(exclude->userClick());
  EXPECT_EQ(f.Comments("Geometry.Shapes.Square"),
            "##EXCLUDE status=3\n"
            "##HISTORY \"Renamed in 2.0.\"\n"
            "##AUTHOR Ann\n"
            "##EXCLUDE status=2 xml=exclude\n");
  EXPECT_EQ(exclude->Value(), 0);
  EXPECT_EQ(f.editor.DockCommentTypes()->Command("flag:##EXCLUDE")->Value(), 0);
}

TEST(CommentEditorRoadsTest, DirtyMovesOnlyOnChangesAndLoadClearsIt) {
  EditorFixture f;
  f.Load("Geometry.Shapes.Circle", "SV:Class");
  f.editor.setDirty(true);
  f.editor.setDirty(true);
  f.editor.setDirty(false);
  f.editor.setDirty(false);
  EXPECT_EQ(f.TakeEvents(), "DirtyStateChanged 1\nDirtyStateChanged 0");

  f.editor.setDirty(true);
  f.Load("Geometry.Shapes.Square", "SV:Class");
  EXPECT_FALSE(f.editor.Dirty());
}

TEST(CommentEditorRoadsTest, NewCommentsGetQualifierXmlTypeAndStatus) {
  EditorFixture f;
  f.Load("Tools.Main", "SV:Component");
  const auto param = f.model.Item("Geometry.Shapes.Circle.Area.radius");
  const auto udtField = f.model.Item("Tools.Main.Point.X");
  const auto moduleVariable = f.model.Item("Tools.Main.Count");
  const auto property = f.model.Item("Geometry.Shapes.Radius");
  const auto legacy = f.model.Tags()->Item("##AUTHOR");
  const auto plain = f.model.Tags()->Item("##REMARKS");

  EXPECT_TRUE(f.editor.QualifierRequired("##REMARKS", plain, param));
  EXPECT_FALSE(f.editor.QualifierRequired("##", nullptr, param)) << "the implicit tag is exempt";
  EXPECT_TRUE(f.editor.QualifierRequired("##REMARKS", plain, udtField));
  EXPECT_FALSE(f.editor.QualifierRequired("##REMARKS", plain, moduleVariable));
  EXPECT_FALSE(f.editor.QualifierRequired("##AUTHOR", legacy, moduleVariable));
  EXPECT_FALSE(f.editor.QualifierRequired("##REMARKS", plain, property));
  EXPECT_TRUE(f.editor.QualifierRequired("##AUTHOR", legacy, property));
  EXPECT_FALSE(f.editor.QualifierRequired("##AUTHOR", legacy, nullptr));

  auto comment = Model().NewTaggedComment();
  comment->setTagIdentifier("##REMARKS");
  comment->setText("Always positive.");
  f.editor.AddTaggedComment(param, comment);
  EXPECT_EQ(f.Comments("Geometry.Shapes.Circle.Area.radius"),
            "##REMARKS \"Always positive.\" status=2 xml=remarks qualifier=radius\n");
  EXPECT_EQ(comment->Item(), param);

  auto implicit = Model().NewTaggedComment();
  implicit->setTagIdentifier("##");
  EXPECT_EQ(f.editor.GetXMLCommentType(implicit), "summary");
  implicit->setTagIdentifier("##NOTE");
  EXPECT_EQ(f.editor.GetXMLCommentType(implicit), "");
  EXPECT_EQ(CommentEditor::FindTaggedComments(
                f.model.Item("Geometry.Shapes.Circle")->TaggedComments()->UnDeletedTaggedComments(),
                "##seealso"),
            1);
}

}  // namespace
}  // namespace sv::test
