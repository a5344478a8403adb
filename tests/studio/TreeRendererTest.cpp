#include "studio/TreeRenderer.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "StudioTestKit.h"

namespace sv {
namespace {

using test::DumpWidget;

// A project with a lazily loaded branch: "shapes" holds only a placeholder until it opens.
class TreeRendererTest : public ::testing::Test {
 protected:
  TreeRendererTest() {
    TreeNode* project = mTree.AddChild(nullptr, QStringLiteral("p"), QStringLiteral("Project"));
    TreeNode* shapes = mTree.AddChild(project, QStringLiteral("shapes"), QStringLiteral("Shapes"));
    mTree.AddChild(shapes, {}, QStringLiteral("..."));
    mTree.AddChild(project, QStringLiteral("notes"), QStringLiteral("Notes"));
    project->setExpanded(true);
    QObject::connect(&mTree, &TreeView::Expanding, [this](TreeNode* node, bool* cancel) {
      mEvents << QStringLiteral("Expanding ") + node->Key();
      if (mCancelExpanding) *cancel = true;
      if (*cancel || node->Child()->Key() != QString()) return;
      mTree.Remove(node->Child());
      mTree.AddChild(node, QStringLiteral("circle"), QStringLiteral("Circle"));
      mTree.AddChild(node, QStringLiteral("square"), QStringLiteral("Square"));
    });
    QObject::connect(&mTree, &TreeView::Expand, [this](TreeNode* node) {
      mEvents << QStringLiteral("Expand ") + node->Key();
    });
    QObject::connect(&mTree, &TreeView::NodeCheck, [this](TreeNode* node) {
      mEvents << QStringLiteral("NodeCheck ") + node->Key();
    });
    QObject::connect(&mTree, &TreeView::NodeClick, [this](TreeNode* node) {
      mEvents << QStringLiteral("NodeClick ") + node->Key();
    });
    mView.resize(300, 300);
    mView.show();
  }

  TreeView mTree;
  TreeRenderer mView{&mTree};
  QStringList mEvents;
  bool mCancelExpanding = false;
};

TEST_F(TreeRendererTest, ShowsWhatTheTreeHoldsAsItChanges) {
  EXPECT_EQ(DumpWidget(mView),
            "- Project\n"
            "  + Shapes\n"
            "    ...\n"
            "  Notes\n");
  EXPECT_EQ(DumpWidget(mView), mTree.Dump());

  TreeNode* notes = mTree.Item(QStringLiteral("notes"));
  notes->setBold(true);
  notes->setText(QStringLiteral("Remarks"));
  mTree.AddChild(notes, QStringLiteral("n1"), QStringLiteral("First"));
  mTree.Add(mTree.Item(QStringLiteral("shapes")), TreeRelationship::Previous, QStringLiteral("a"),
            QStringLiteral("About"));
  mTree.Move(notes, nullptr, TreeRelationship::First);
  mTree.setCheckBoxes(true);
  mTree.Item(QStringLiteral("n1"))->setChecked(true);
  mTree.Remove(QStringLiteral("shapes"));
  mTree.setSelectedItem(mTree.Item(QStringLiteral("a")));
  EXPECT_EQ(DumpWidget(mView),
            "+ [ ] *Remarks\n"
            "  [x] First\n"
            "- [ ] Project\n"
            "  [ ] About <selected>\n");
  // Nothing a person did: no events.
  EXPECT_TRUE(mEvents.isEmpty()) << mEvents.join(", ").toStdString();

  mTree.Clear();
  EXPECT_EQ(mView.topLevelItemCount(), 0);
}

TEST_F(TreeRendererTest, OpeningALazyNodeRunsExpandingAndShowsTheLoadedChildren) {
  QTreeWidgetItem* shapes = mView.ItemFor(mTree.Item(QStringLiteral("shapes")));
  mCancelExpanding = true;
  mView.expandItem(shapes);
  EXPECT_EQ(mEvents.join(", "), "Expanding shapes");
  EXPECT_FALSE(shapes->isExpanded()) << "a cancelled Expanding leaves the node closed";

  mEvents.clear();
  mCancelExpanding = false;
  mView.expandItem(shapes);
  EXPECT_EQ(mEvents.join(", "), "Expanding shapes, Expand shapes");
  EXPECT_EQ(DumpWidget(mView),
            "- Project\n"
            "  - Shapes\n"
            "    Circle\n"
            "    Square\n"
            "  Notes\n");
}

TEST_F(TreeRendererTest, TicksAndClicksInTheWidgetReachTheTree) {
  mTree.setCheckBoxes(true);
  TreeNode* notes = mTree.Item(QStringLiteral("notes"));
  // What a click on the check box does to the item.
  mView.ItemFor(notes)->setCheckState(0, Qt::Checked);
  EXPECT_TRUE(notes->Checked());
  EXPECT_EQ(mEvents.join(", "), "NodeCheck notes");

  mEvents.clear();
  const QRect row = mView.visualItemRect(mView.ItemFor(notes));
  QTest::mouseClick(mView.viewport(), Qt::LeftButton, {}, row.center());
  EXPECT_EQ(mEvents.join(", "), "NodeClick notes");
  EXPECT_EQ(mTree.SelectedItem(), notes);

  mEvents.clear();
  mView.setFocus();
  QTest::keyClick(&mView, Qt::Key_Up);
  EXPECT_EQ(mEvents.join(", "), "NodeClick shapes") << "the tree moves the selection, not Qt";
  EXPECT_EQ(mView.currentItem(), mView.ItemFor(mTree.Item(QStringLiteral("shapes"))));
}

TEST_F(TreeRendererTest, LabelEditsGoThroughTheTreesEvents) {
  TreeNode* notes = mTree.Item(QStringLiteral("notes"));
  QStringList edits;
  QObject::connect(&mTree, &TreeView::BeforeLabelEdit,
                   [&](bool*) { edits << QStringLiteral("Before"); });
  QObject::connect(&mTree, &TreeView::AfterLabelEdit, [&](bool*, QString* text) {
    edits << QStringLiteral("After ") + *text;
    *text = text->toUpper();
  });
  mTree.setSelectedItem(notes);
  mView.editItem(mView.ItemFor(notes));
  auto* editor = mView.viewport()->findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  editor->setText(QStringLiteral("Remarks"));
  QTest::keyClick(editor, Qt::Key_Return);
  // The delegate commits on the next turn of the event loop.
  QCoreApplication::processEvents();
  EXPECT_EQ(edits.join(", "), "Before, After Remarks");
  EXPECT_EQ(notes->Text(), "REMARKS");
  EXPECT_EQ(mView.ItemFor(notes)->text(0), "REMARKS");

  edits.clear();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  mView.editItem(mView.ItemFor(notes));
  editor = mView.viewport()->findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  editor->setText(QStringLiteral("Dropped"));
  QTest::keyClick(editor, Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_EQ(edits.join(", "), "Before, After ");
  EXPECT_EQ(mView.ItemFor(notes)->text(0), "REMARKS");
}

}  // namespace
}  // namespace sv
