// What an element offers: bar pages, flags, list rows and toolbar commands.
#include <gtest/gtest.h>

#include "EditorFixture.h"
#include "comments/ElementFacts.h"
#include "model/CodeItem.h"
#include "ui/Dock.h"
#include "ui/ExplorerBar.h"
#include "ui/PropertyList.h"
#include "widgets/EBCheckBoxes.h"

namespace sv::test {
namespace {

TEST(CommentEditorOffersTest, AClassOffersItsPagesFlagsAndListTags) {
  EditorFixture f;
  f.Load("Geometry.Shapes.Circle", "SV:Class");
  // Circle declares its own constructor, so the default constructor page is not offered; the
  // legacy History page only stands on elements that have such a comment; {None} has no page.
  EXPECT_EQ(f.Bar(),
            "- Pages <main>\n"
            "  * \"Standard\" Page <inplaceedit:Standard> {inplace}\n"
            "- Flags <flags>\n"
            "   <checkboxcontainer>\n"
            "- Common <Common>\n"
            "  [x] Description <##SUMMARY> {summary_ticked}\n"
            "  Remarks <##REMARKS> {remarks}\n"
            "- Samples <Samples>\n"
            "  Example <##EXAMPLE> {example}\n"
            "- Other <other>\n"
            "  [x] Other Tags <other> {other_ticked}");
  EXPECT_EQ(f.Flags(), "[ ] Exclude <##EXCLUDE>\n[ ] ##HIDDEN <##HIDDEN>");
  EXPECT_EQ(f.editor.CheckBoxes()->Item(1)->ToolTipText(), "Leaves the element out.");
  EXPECT_EQ(f.editor.CheckBoxes()->Item(2)->ToolTipText(), "Hidden");
  EXPECT_EQ(f.editor.eb()->FindItem("##SUMMARY")->ToolTip(), "Summary");
  EXPECT_EQ(f.editor.eb()->SelectedItem()->Tag(), "x") << "chosen by the editor";
  EXPECT_EQ(f.Toolbar(),
            "p-fullpageedit=1 {fullpageedit}\n"
            "  inplaceedit:Standard (current)\n"
            "##SUMMARY {summary_ticked}\n"
            "##REMARKS {remarks}\n"
            "##EXAMPLE {example}\n"
            "| other {other}\n"
            "Flags {flags}\n"
            "  flag:##EXCLUDE\n"
            "  flag:##HIDDEN\n"
            "| TipPopup (disabled)");
  EXPECT_EQ(f.List(), "(no list)") << "the list is made on its first display";
  EXPECT_FALSE(f.editor.Dirty());

  // The first display of the list refreshes again to fill it. Note has no XML form and
  // Internal is kept out of the addable list; Author is a legacy tag.
  ASSERT_TRUE(f.editor.eb()->userClickItem("other"));
  EXPECT_EQ(f.List(),
            "- Existing Comments\n"
            "> See Also = Square\n"
            "- Available to add\n"
            "  See Also = Click to add this tag... (add)");
  EXPECT_TRUE(f.editor.TagsList()->Visible());
  EXPECT_EQ(f.editor.eb()->SelectedItem()->Key(), "other");
  EXPECT_EQ(f.editor.DockCommentTypes()->Command("other")->Value(), 1);
  EXPECT_TRUE(f.editor.TagsList()->Button("DeleteButton").Visible);
  EXPECT_FALSE(f.editor.TagsList()->Button("AddButton").Visible);
  const PropertyRow* add = f.editor.TagsList()->Item("new:##SEEALSO");
  EXPECT_EQ(add->Name(), "##SEEALSO");
  EXPECT_EQ(add->ForeColor(), SystemColor::GrayText);
  EXPECT_TRUE(add->Description().startsWith("This tag has already been added"));
  EXPECT_EQ(f.TakeEvents(), "");
}

TEST(CommentEditorOffersTest, LegacyTagsAndFlagsOfAnElementThatHasThem) {
  EditorFixture f;
  f.Load("Geometry.Shapes.Square", "SV:Class");
  f.editor.eb()->userClickItem("other");
  // Square declares no constructor of its own: its default constructor is documented here.
  EXPECT_EQ(f.Bar(),
            "- Pages <main>\n"
            "  \"Standard\" Page <inplaceedit:Standard> {inplace}\n"
            "- Flags <flags>\n"
            "   <checkboxcontainer>\n"
            "- Common <Common>\n"
            "  Description <##SUMMARY> {summary}\n"
            "  Remarks <##REMARKS> {remarks}\n"
            "  Default Constructor <##DEFAULTCONSTRUCTORSUMMARY> {defaultconstructorsummary}\n"
            "  [x] History <##HISTORY> {remarks_ticked}\n"
            "- Samples <Samples>\n"
            "  Example <##EXAMPLE> {example}\n"
            "- Other <other>\n"
            "  * [x] Other Tags <other> {other_ticked}");
  EXPECT_EQ(f.Flags(), "[x] Exclude <##EXCLUDE>\n[ ] ##HIDDEN <##HIDDEN>");
  EXPECT_EQ(f.List(),
            "- Existing Comments\n"
            "> Author = Ann\n"
            "- Available to add\n"
            "  See Also = Click to add this tag... (add)");
  EXPECT_EQ(f.Toolbar(),
            "p-fullpageedit {fullpageedit}\n"
            "  inplaceedit:Standard (current)\n"
            "##SUMMARY {summary}\n"
            "##REMARKS {remarks}\n"
            "##DEFAULTCONSTRUCTORSUMMARY {defaultconstructorsummary}\n"
            "##HISTORY {remarks_ticked}\n"
            "##EXAMPLE {example}\n"
            "| other=1 {other}\n"
            "Flags {flags_ticked}\n"
            "  flag:##EXCLUDE=1\n"
            "  flag:##HIDDEN\n"
            "| TipPopup (disabled)");

  f.editor.setShowLegacyTags(true);
  f.editor.Refresh(true);
  EXPECT_EQ(f.List(),
            "- Existing Comments\n"
            "> Author = Ann\n"
            "- Available to add\n"
            "  See Also = Click to add this tag... (add)\n"
            "  Author = Click to add this tag... (add)");
  EXPECT_TRUE(f.editor.TagsList()
                  ->Item("new:##AUTHOR")
                  ->Description()
                  .startsWith("This tag has already been added"));
  EXPECT_TRUE(f.editor.TagsList()
                  ->Item("new:##SEEALSO")
                  ->Description()
                  .startsWith("This tag has not be added"));
  EXPECT_EQ(f.Flags(), "[x] Exclude <##EXCLUDE>\n[ ] ##HIDDEN <##HIDDEN>")
      << "refilling the list keeps the flags";
}

TEST(CommentEditorOffersTest, OverloadAndCommentTypeRulesOfMembers) {
  EditorFixture f;
  f.Load("Geometry.Shapes.Circle.Area", "SV:Method");
  EXPECT_EQ(f.Bar(),
            "- Pages <main>\n"
            "  * \"Standard\" Page <inplaceedit:Standard> {inplace}\n"
            "- Flags <flags>\n"
            "   <checkboxcontainer>\n"
            "- Common <Common>\n"
            "  Description <##SUMMARY> {summary}\n"
            "  Remarks <##REMARKS> {remarks}\n"
            "  Returns <##RETURNS> {returns}\n"
            "- Samples <Samples>\n"
            "  Example <##EXAMPLE> {example}\n"
            "- Other <other>\n"
            "  [x] Other Tags <other> {other_ticked}");
  f.Load("Geometry.Shapes.Circle.Draw", "SV:Method");
  EXPECT_NE(f.editor.eb()->FindItem("##OVERLOADS"), nullptr) << "an overloaded block";
  f.Load("Geometry.Shapes.Circle.Move", "SV:Method");
  EXPECT_NE(f.editor.eb()->FindItem("##OVERLOADS"), nullptr) << "a block with overload blocks";

  // Without XML comments a tag needs no XML form: Note is offered and listed.
  f.editor.setCommentType(1);
  f.Load("Geometry.Shapes.Circle", "SV:Class");
  f.editor.eb()->userClickItem("other");
  EXPECT_EQ(f.List(),
            "- Existing Comments\n"
            "> See Also = Square\n"
            "  Note = Not listed in XML mode.\n"
            "- Available to add\n"
            "  See Also = Click to add this tag... (add)\n"
            "  Note = Click to add this tag... (add)");

  // The host's design flag hides the tags whose DesignFlag holds it: here the flags.
  f.editor.setDesignFlag("f");
  f.editor.Refresh();
  EXPECT_EQ(f.Flags(), "");
  EXPECT_FALSE(f.editor.eb()->Group("flags")->Visible());
}

// A model that knows which assembly file a namespace comes from.
class AssemblyFacts : public ElementFacts {
 public:
  QString AssemblyFileName(const std::shared_ptr<CodeItem>&,
                           const std::shared_ptr<NamespaceProvider>&) const override {
    return file;
  }
  QString file;
};

TEST(CommentEditorOffersTest, WhatNamespacesAndSourceProjectsOffer) {
  EditorFixture f;
  auto facts = std::make_shared<AssemblyFacts>();
  f.editor.setElementFacts(facts);

  // A variable of a source project offers the tags of a property.
  f.Load("Tools.Main.Count", "SV:Variable");
  ASSERT_TRUE(f.editor.eb()->userClickItem("other"));
  EXPECT_EQ(f.Bar(),
            "- Pages <main>\n"
            "- Common <Common>\n"
            "  Description <##SUMMARY> {summary}\n"
            "  Remarks <##REMARKS> {remarks}\n"
            "  Value <##VALUE> {value}\n"
            "- Other <other>\n"
            "  * Other Tags <other> {other}");
  EXPECT_EQ(f.List(),
            "- Existing Comments\n"
            "- Available to add\n"
            "> See Also = Click to add this tag... (add)");
  EXPECT_TRUE(f.editor.TagsList()->Button("AddButton").Visible);

  facts->file = "Geometry.dll";
  f.Load("Geometry.Shapes", "SV:NameSpace");
  EXPECT_NE(f.editor.eb()->FindItem("##SUMMARY"), nullptr);

  // A namespace of a source project offers nothing: only the empty headings remain.
  facts->file = "Geometry.CSPROJ";
  f.Load("Geometry.Shapes", "SV:NameSpace");
  EXPECT_EQ(f.Bar(), "- Pages <main>");
  EXPECT_EQ(f.List(), "- Existing Comments\n- Available to add");
  EXPECT_TRUE(f.editor.TagsList()->Visible());

  // An item kind no tag names offers nothing either.
  f.Load("Geometry", "Assembly");
  EXPECT_EQ(f.Bar(), "- Pages <main>");
}

TEST(CommentEditorOffersTest, ContainsNamespaceMatchesWholeEntriesAndTails) {
  EXPECT_TRUE(CommentEditor::ContainsNamespace("SV:Class,SV:Method", "sv:method"));
  EXPECT_TRUE(CommentEditor::ContainsNamespace("SV:Class,SV:Method", "SV:Class"));
  EXPECT_FALSE(CommentEditor::ContainsNamespace("SV:ClassView,SV:Method", "SV:Class"));
  EXPECT_TRUE(CommentEditor::ContainsNamespace("SV:ClassView,SV:Class", "SV:Class"))
      << "a later whole entry is found after a partial hit";
  EXPECT_TRUE(CommentEditor::ContainsNamespace("XSV:Class", "SV:Class"))
      << "the tail of a longer entry counts";
  EXPECT_FALSE(CommentEditor::ContainsNamespace("", "SV:Class"));
}

TEST(CommentEditorOffersTest, WithoutAnElementTheEditorHidesAndKeepsDirty) {
  EditorFixture f;
  f.Load("Geometry.Shapes.Circle", "SV:Class");
  f.editor.eb()->userClickItem("other");
  f.editor.setDirty(true);
  f.TakeEvents();
  f.editor.setCurrentCodeElement(nullptr);
  EXPECT_FALSE(f.editor.eb()->Visible());
  EXPECT_FALSE(f.editor.TagsList()->Visible());
  EXPECT_TRUE(f.editor.Dirty());
  EXPECT_EQ(f.TakeEvents(), "");
  EXPECT_EQ(f.editor.eb()->RedrawLockCount(), 0);
  EXPECT_EQ(f.services.message->Count(), 0);
}

}  // namespace
}  // namespace sv::test
