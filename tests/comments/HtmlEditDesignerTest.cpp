// The plain HTML designer as an author meets it: typing into a page of the comment editor.
#include "comments/designers/HtmlEditDesigner.h"

#include <gtest/gtest.h>

#include "DesignerFixture.h"
#include "comments/DesignerControl.h"
#include "model/CodeItem.h"
#include "model/NamespaceDef.h"
#include "project/core/Definition.h"
#include "project/core/DefinitionSet.h"
#include "project/core/ProjectModelFactory.h"
#include "project/core/TagDefinitionSet.h"
#include "project/model/ProjectModel.h"
#include "support/QtPrinters.h"
#include "support/ScopedModel.h"
#include "ui/ExplorerBar.h"
#include "ui/HtmlEditor.h"
#include "ui/Keys.h"

namespace sv::test {
namespace {

bool Ticked(const DesignerFixture& f, const QString& key) {
  return f.editor.eb()->FindItem(key)->Ticked();
}

TEST(HtmlEditDesignerTest, TypingIntoAnEmptyPageAddsTheCommentAndEmptyingItDeletesIt) {
  DesignerFixture f;
  f.Load("geo::Circle", "Class");
  ASSERT_TRUE(f.editor.eb()->userClickItem("##EXAMPLE"));
  HtmlEditor* page = f.editor.GetActiveHTMLEditor();
  ASSERT_NE(page, nullptr);
  EXPECT_TRUE(page->Visible());
  EXPECT_EQ(page->BodyHTML(), "");
  EXPECT_FALSE(Ticked(f, "##EXAMPLE"));
  f.TakeEvents();

  page->userType("Call Area() & compare.");
  // The listener sees the comment with its tag and text, before it is completed.
  EXPECT_EQ(f.TakeEvents(),
            "TaggedCommentAdded Circle ##EXAMPLE \"Call Area() &amp; compare.\" status=2\n"
            "DirtyStateChanged 1");
  EXPECT_EQ(f.Comments("geo::Circle"),
            "##SUMMARY \"A round shape.\"\n"
            "##REMARKS \"<P>Old markup\"\n"
            "##EXAMPLE \"Call Area() &amp; compare.\" status=2 xml=example\n");
  EXPECT_TRUE(Ticked(f, "##EXAMPLE"));

  page->userType("\nTwice.");
  EXPECT_EQ(
      f.TakeEvents(),
      "TaggedCommentChanged Circle ##EXAMPLE \"Call Area() &amp; compare.<br>Twice.\" key=Id");

  // Emptying the page takes the comment away; never stored, it leaves no tombstone.
  f.editor.setKeepTombstones(true);
  page->userSelectAll();
  EXPECT_TRUE(page->userPressKey(KeyCode::Back));
  EXPECT_EQ(f.TakeEvents(), "TaggedCommentDeleted Circle ##EXAMPLE key=Id");
  EXPECT_EQ(f.Comments("geo::Circle"),
            "##SUMMARY \"A round shape.\"\n"
            "##REMARKS \"<P>Old markup\"\n");
  EXPECT_FALSE(Ticked(f, "##EXAMPLE"));
  EXPECT_TRUE(f.editor.Dirty());
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(HtmlEditDesignerTest, EmptyingAStoredCommentLeavesATombstoneAndTypingStartsAnew) {
  DesignerFixture f;
  f.editor.setKeepTombstones(true);
  f.Load("geo::Circle", "Class");
  HtmlEditor* page = f.editor.GetActiveHTMLEditor();
  ASSERT_NE(page, nullptr);
  EXPECT_TRUE(page->Visible());
  EXPECT_EQ(page->BodyHTML(), "A round shape.");
  f.TakeEvents();

  // What a browser leaves behind when all text is deleted counts as empty.
  page->userSetBodyHTML("<p>&nbsp;</p>");
  EXPECT_EQ(f.TakeEvents(), "TaggedCommentDeleted Circle ##SUMMARY key=Id\nDirtyStateChanged 1");
  EXPECT_EQ(f.Comments("geo::Circle"),
            "##SUMMARY \"A round shape.\" status=3\n"
            "##REMARKS \"<P>Old markup\"\n");
  page->userSetBodyHTML("<p><br></p>");
  EXPECT_EQ(f.TakeEvents(), "");

  page->userSetBodyHTML("<p>A circle.</p>");
  EXPECT_EQ(f.TakeEvents(), "TaggedCommentAdded Circle ##SUMMARY \"<p>A circle.</p>\" status=2");
  EXPECT_EQ(f.Comments("geo::Circle"),
            "##SUMMARY \"A round shape.\" status=3\n"
            "##REMARKS \"<P>Old markup\"\n"
            "##SUMMARY \"<p>A circle.</p>\" status=2 xml=summary\n");
  // The page shows the live comment, not the tombstone.
  f.Load("geo::Square", "Class");
  f.Load("geo::Circle", "Class");
  EXPECT_EQ(f.editor.GetActiveHTMLEditor()->BodyHTML(), "<p>A circle.</p>");
}

TEST(HtmlEditDesignerTest, StoredTextIsWrittenBackOnlyWhenTheAuthorEditsIt) {
  DesignerFixture f;
  f.Load("geo::Circle", "Class");
  ASSERT_TRUE(f.editor.eb()->userClickItem("##REMARKS"));
  HtmlEditor* page = f.editor.GetActiveHTMLEditor();
  EXPECT_EQ(page->BodyHTML(), "<p>Old markup</p>");
  // Showing, committing, leaving and coming back change nothing.
  f.editor.CommitEdit();
  ASSERT_TRUE(f.editor.eb()->userClickItem("##SUMMARY"));
  f.Load("geo::Square", "Class");
  f.Load("geo::Circle", "Class");
  ASSERT_TRUE(f.editor.eb()->userClickItem("##REMARKS"));
  EXPECT_EQ(f.TakeEvents(), "");
  EXPECT_EQ(f.Comments("geo::Circle"),
            "##SUMMARY \"A round shape.\"\n##REMARKS \"<P>Old markup\"\n");

  page->userType(", revised");
  EXPECT_EQ(f.TakeEvents(),
            "TaggedCommentChanged Circle ##REMARKS \"<p>Old markup, revised</p>\" key=Id\n"
            "DirtyStateChanged 1");
  // An edit that came without a Change (a script of the page) is written on CommitEdit.
  page->Document().body()->firstChild()->firstChild()->setNodeValue("Final");
  EXPECT_EQ(f.TakeEvents(), "");
  f.editor.CommitEdit();
  EXPECT_EQ(f.TakeEvents(), "TaggedCommentChanged Circle ##REMARKS \"<p>Final</p>\" key=Id");
  ASSERT_TRUE(f.editor.eb()->userClickItem("##SUMMARY"));
  EXPECT_EQ(f.TakeEvents(), "");
}

TEST(HtmlEditDesignerTest, PagesShareOneEditorAndTakeTheHostsFormatting) {
  DesignerFixture f;
  RecordingWrapper wrapper;
  f.editor.BindToWrapper(&wrapper);
  f.Load("geo::Circle", "Class");
  HtmlEditor* page = f.editor.GetActiveHTMLEditor();
  // The designer points the host's formatting commands at its editor.
  EXPECT_EQ(wrapper.Take(), "lockrefresh\nBindTo 1 editor\nunlockrefreshabsolute");
  ASSERT_TRUE(f.editor.eb()->userClickItem("##SEEALSO"));
  EXPECT_EQ(f.editor.GetActiveHTMLEditor(), page);
  EXPECT_EQ(f.editor.CreatedDesigners().Count(), 1);
  ASSERT_TRUE(f.editor.eb()->userClickItem("##SUMMARY"));
  f.editor.SetEditFocus();
  EXPECT_TRUE(page->Focused());
  f.TakeEvents();

  page->SelectNode(page->Document().body()->firstChild());
  f.editor.SetForeColorByName("red");
  EXPECT_EQ(f.editor.GetForeColorName(), "red");
  f.editor.ClickEditTool("Bold");
  EXPECT_EQ(f.TakeEvents(),
            "TaggedCommentChanged Circle ##SUMMARY \"<font color=\"red\">A round shape.</font>\" "
            "key=Id\n"
            "DirtyStateChanged 1\n"
            "TaggedCommentChanged Circle ##SUMMARY \"<b><font color=\"red\">A round "
            "shape.</font></b>\" key=Id");

  // With the tag list on display the commands have no editor to go to. (Its first showing
  // refreshes the editor, which clears Dirty.)
  ASSERT_TRUE(f.editor.eb()->userClickItem("other"));
  EXPECT_EQ(f.TakeEvents(), "DirtyStateChanged 0");
  EXPECT_EQ(f.editor.GetActiveHTMLEditor(), nullptr);
  EXPECT_FALSE(page->Visible());
  f.editor.InsertTable(2, 2);
  f.editor.SetFillColorByName("yellow");
  EXPECT_EQ(f.editor.GetFillColorName(), "");
  EXPECT_EQ(f.TakeEvents(), "");
  EXPECT_EQ(f.services.message->Count(), 0);
  f.editor.BindToWrapper(nullptr);
}

TEST(HtmlEditDesignerTest, TagsThatNameNoClassUseTheDesignTimeDesigner) {
  FakeServices services;
  ModelBuilder model(R"(
definitions sv.test
  Class moniker=cls
tags
  ##SUMMARY name=Summary caption=Description group=Common xml=summary namespaces=Class
  ##NOTE name=Note caption=Note group=Common xml=note designer=Custom.Designer namespaces=Class
items
  cls Circle component
    ##SUMMARY "Round." id=c1
)");
  ScopedModel scoped(model.Factory());
  CommentEditor editor;
  const auto item = model.Item("Circle");
  editor.Load(model.Def("Class"), item, item);

  EXPECT_EQ(editor.DesignerForTaggedComment(model.Tags()->Item("##SUMMARY")), "HTMLEdit");
  // Its first showing initialises it; no control is made for it.
  EXPECT_EQ(editor.HTMLEdit()->Tag(), "Done");
  EXPECT_TRUE(editor.HTMLEdit()->Visible());
  EXPECT_EQ(editor.ActiveDesigner(), editor.HTMLEdit()->Object().get());
  EXPECT_EQ(editor.CreatedDesigners().Count(), 0);
  EXPECT_EQ(editor.GetActiveHTMLEditor()->BodyHTML(), "Round.");

  // A class nobody registered is a clear error, and nothing is made.
  ASSERT_TRUE(editor.eb()->userClickItem("##NOTE"));
  ASSERT_EQ(services.message->Count(), 1);
  EXPECT_TRUE(services.message->Boxes().front().text.contains("\"Custom.Designer\""));
  EXPECT_EQ(editor.CreatedDesigners().Count(), 0);
  editor.Terminate();
}

TEST(HtmlEditDesignerTest, EmptyMeansNothingAnAuthorWrote) {
  for (const char* empty : {"", "  ", "<p>&nbsp;</p>", "<P>&nbsp;</P>", "<br>", "<div><br></div>",
                            "<p> </p><p>\u00a0</p>", "<b></b>"})
    EXPECT_TRUE(HtmlEditDesigner::IsEmptyText(empty)) << empty;
  for (const char* content : {"x", "<p>&nbsp;x</p>", "<img src=\"a.png\">", "<hr>",
                              "<table><tbody><tr><td></td></tr></tbody></table>", "<!-- meta -->",
                              "<p><!-- meta --></p>"})
    EXPECT_FALSE(HtmlEditDesigner::IsEmptyText(content)) << content;
}

}  // namespace
}  // namespace sv::test
