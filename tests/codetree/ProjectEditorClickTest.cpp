// A click on a node loads the item into the editor; folders and vanished items empty it.
#include <gtest/gtest.h>

#include "ProjectEditorFixture.h"
#include "codetree/ProjectView.h"
#include "comments/CommentEditor.h"
#include "model/CodeItem.h"
#include "model/ModelFactory.h"
#include "model/SVContentFile.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"
#include "project/core/CommentList.h"
#include "project/core/MemoryProvider.h"
#include "ui/ExplorerBar.h"
#include "ui/PropertyList.h"
#include "ui/TreeView.h"

namespace sv::test {
namespace {

// Content files as the tree fills: remembers what it was told and holds comments by item.
class FakeContentFile : public SVContentFile {
 public:
  void ItemPopulated(const std::shared_ptr<CodeItem>& item, const QString& filter) override {
    told << item->QualifiedName().value_or(QString()) + QLatin1Char('|') + filter;
  }
  CommentCollection CommentsFor(const CodeItem& item) const override {
    return held.value(item.QualifiedName().value_or(QString()));
  }

  QStringList told;
  QHash<QString, CommentCollection> held;
};

TEST(ProjectEditorClickTest, ClickingThroughTheTreeLoadsItemsAndEmptiesTheEditorOnFolders) {
  ProjectEditorFixture f;
  f.click("Geometry~Shapes~Circle");
  EXPECT_EQ(f.shown(),
            "- Geometry\n"
            "  - *Shapes\n"
            "    + *Circle\n"
            "    + Square\n"
            "    + Unit Circle\n"
            "  + Tools\n");
  EXPECT_EQ(f.element(), "Geometry~Shapes~Circle");
  EXPECT_EQ(f.TakeEvents(), "NodeClickNameSpaceDef Geometry~Shapes~Circle SV:Class");
  // The editor offers the class's pages, titled with the node.
  EXPECT_EQ(f.commentEditor().TitleCaption(), "Circle");
  EXPECT_EQ(f.commentEditor().TitleIcon(), "sv:class");
  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("other"));
  EXPECT_EQ(f.commentEditor().TagsList()->Dump().toStdString(),
            "- Existing Comments\n"
            "> See Also = Square\n"
            "- Available to add\n"
            "  See Also = Click to add this tag... (add)");
  EXPECT_EQ(f.copyPaste(), "Copy on, Paste off");
  EXPECT_EQ(f.wrapper.Take(), "lock unlockabsolute");

  // A group folder has no item: the editor lets its element go, Copy stays on, Paste off.
  f.tree().userExpand(f.node("Geometry~Shapes~Circle"));
  f.click("Geometry~Shapes~Circle_SV:Method");
  EXPECT_EQ(f.element(), "(none)");
  EXPECT_EQ(f.commentEditor().TagsList()->Count(), 0);
  EXPECT_EQ(f.TakeEvents(), "");
  EXPECT_EQ(f.copyPaste(), "Copy on, Paste off");
  EXPECT_EQ(f.wrapper.Take(), "");

  f.click("Geometry~Shapes~Circle~Area");
  EXPECT_EQ(f.element(), "Geometry~Shapes~Circle~Area");
  EXPECT_EQ(f.commentEditor().TitleCaption(), "Area");
  EXPECT_EQ(f.wrapper.Take(), "lock unlockabsolute");
  EXPECT_EQ(f.wrapper.depth, 0);
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(ProjectEditorClickTest, ANodeWhoseItemIsGoneEmptiesTheEditorAndSaysNothing) {
  ProjectEditorFixture f;
  f.click("Geometry~Shapes~Circle");
  f.TakeEvents();
  f.wrapper.Take();
  // A node left behind by a model that has since dropped the item.
  TreeNode* stale = f.tree().AddChild(f.node("Geometry~Shapes"), "Geometry~Shapes~Gone", "Gone");
  stale->setTag("cls");
  f.tree().userClick(stale);
  EXPECT_EQ(f.element(), "(none)");
  EXPECT_EQ(f.TakeEvents(), "NodeClickNameSpaceDef Geometry~Shapes~Gone SV:Class");
  EXPECT_EQ(f.wrapper.Take(), "");
  EXPECT_EQ(f.copyPaste(), "Copy on, Paste off");
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(ProjectEditorClickTest, ContentFilesHearOfPopulatedItemsAndCompleteLazyComments) {
  ProjectEditorFixture f;
  auto contentFile = std::make_shared<FakeContentFile>();
  f.editor.setSVContentFile(contentFile);
  f.model.Provider()->setRelevantContentFilter("Geometry~Shapes", "shapes.svc");

  // The Circle's comments so far hold only what the project file had.
  const auto circle = f.model.Item("Geometry~Shapes~Circle");
  std::dynamic_pointer_cast<CommentList>(circle->TaggedComments())->setConsolidated(false);
  auto fromFile = Model().NewTaggedComment();
  fromFile->setTagIdentifier("##REMARKS");
  fromFile->setText("Kept in shapes.svc.");
  contentFile->held["Geometry~Shapes~Circle"].Add(fromFile, fromFile->Id());
  // A comment both sources know is the same comment.
  contentFile->held["Geometry~Shapes~Circle"].Add(circle->TaggedComments()->Item("c1"), "c1");

  f.click("Geometry~Shapes~Circle");
  EXPECT_EQ(contentFile->told.join(',').toStdString(), "Geometry~Shapes|shapes.svc");
  EXPECT_EQ(f.TakeEvents(),
            "ItemPopulated Geometry~Shapes shapes.svc\n"
            "NodeClickNameSpaceDef Geometry~Shapes~Circle SV:Class");
  EXPECT_TRUE(circle->TaggedComments()->Consolidated());
  EXPECT_EQ(f.comments("Geometry~Shapes~Circle"),
            "##SUMMARY \"A round shape.\"\n"
            "##SEEALSO Square\n"
            "##REMARKS \"Kept in shapes.svc.\" status=2\n");
  // The editor shows the merged comments: the Remarks page has content.
  EXPECT_TRUE(f.commentEditor().eb()->FindItem("##REMARKS")->Ticked());
}

}  // namespace
}  // namespace sv::test
