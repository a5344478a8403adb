// The split, the settings branch, user data, context help, the spell check over the tree, and
// the control's end.
#include <gtest/gtest.h>

#include "ProjectEditorFixture.h"
#include "codetree/ProjectView.h"
#include "comments/CommentEditor.h"
#include "foundation/modMain.h"
#include "foundation/modProjectView.h"
#include "model/NamespaceDefs.h"
#include "ui/ExplorerBar.h"
#include "ui/PropertyList.h"
#include "ui/Splitter.h"
#include "ui/TreeView.h"

namespace sv::test {
namespace {

double stored(const char* name, const QString& path = {}) {
  return GetAppValue(QString::fromLatin1(name), -1, Conversion::Number, path).toDouble();
}

class HelpWindow : public IDynamicHelpHost {
 public:
  void ContextChanged() override { ++changes; }
  int changes = 0;
};

TEST(ProjectEditorSettingsTest, TheSplitIsStoredWhenMovedAndReadBack) {
  ProjectEditorFixture f;
  f.editor.setAppName("ScrivaraTest");
  EXPECT_EQ(f.view().AppName(), "ScrivaraTest");
  EXPECT_EQ(f.commentEditor().AppName(), "ScrivaraTest");
  Splitter* split = f.editor.splitMain();
  EXPECT_EQ(split->Child1(), f.editor.ProjectViewControl());
  EXPECT_EQ(split->Child2(), f.editor.CommentEditorControl());
  // Nothing stored yet: the default split.
  f.editor.ReloadSettings();
  EXPECT_EQ(f.editor.SplitPercent(), 40);

  split->userDrag(30);
  EXPECT_EQ(stored("ViewSplitterPercentage", "Layout"), 30);
  f.editor.setSplitPercent(55);
  EXPECT_EQ(split->Position(), 55);
  EXPECT_EQ(stored("ViewSplitterPercentage", "Layout"), 55);
  // Beyond the ends the bar stops at them.
  split->userDrag(120);
  EXPECT_EQ(stored("ViewSplitterPercentage", "Layout"), 100);
  ProjectEditor another;
  another.ReloadSettings();
  EXPECT_EQ(another.SplitPercent(), 100);

  // The size of the split is written by the first Terminate only, and read with AppName.
  split->setPosition(35);
  f.editor.Terminate();
  EXPECT_EQ(stored("ProjectEditorSplitSize"), 35);
  EXPECT_EQ(f.view().NamespaceDefs(), nullptr);
  EXPECT_EQ(f.commentEditor().CurrentCodeElement(), nullptr);
  split->setPosition(70);
  f.editor.Terminate();
  EXPECT_EQ(stored("ProjectEditorSplitSize"), 35);
  another.setAppName("ScrivaraTest");
  EXPECT_EQ(another.SplitPercent(), 35);
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(ProjectEditorSettingsTest, RefreshClearAndUserData) {
  ProjectEditorFixture f;
  f.click("Geometry~Shapes~Circle");
  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("##SUMMARY"));
  QVariantMap userData;
  f.editor.SaveUserData(userData);

  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("other"));
  f.editor.LoadUserData(userData);
  EXPECT_EQ(f.commentEditor().eb()->SelectedItem()->Key(), "##SUMMARY");

  // Refresh empties the editor's list and rebuilds the tree as it was opened.
  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("other"));
  EXPECT_GT(f.commentEditor().TagsList()->Count(), 0);
  f.editor.Refresh();
  EXPECT_EQ(f.commentEditor().TagsList()->Count(), 0);
  EXPECT_EQ(f.selected(), "Geometry~Shapes~Circle");

  f.editor.Clear();
  EXPECT_EQ(f.tree().Count(), 0);
  EXPECT_EQ(f.element(), "(none)");
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(ProjectEditorSettingsTest, ContextHelpDescribesTheProfileAndThePageInUse) {
  ProjectEditorFixture f;
  auto help = std::make_shared<HelpWindow>();
  f.editor.Initialise(help);
  EXPECT_EQ(f.commentEditor().DynamicHelpHost(), help);

  QStringList keywords;
  QMap<QString, QString> attributes;
  f.editor.QueryContext(keywords, attributes);
  EXPECT_EQ(keywords.join(',').toStdString(), "SV.CommentProjectEditor");
  EXPECT_EQ(attributes.value("SV.CommentProjectEditor.NamespaceProfile"), "sv.net");

  f.click("Geometry~Shapes~Circle");
  keywords.clear();
  f.editor.QueryContext(keywords, attributes);
  EXPECT_EQ(keywords.join(',').toStdString(),
            "SV.CommentProjectEditor,SV.CommentEditor.FullPageEdit");
  EXPECT_EQ(attributes.value("SV.CommentEditor.Namespace"), "SV:Class");

  const int before = help->changes;
  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("##SUMMARY"));
  EXPECT_EQ(help->changes, before + 1) << "a new page is a new context";
  keywords.clear();
  attributes.clear();
  f.editor.QueryContext(keywords, attributes);
  EXPECT_EQ(keywords.join(',').toStdString(),
            "SV.CommentProjectEditor,SV.CommentEditor.Description");
  EXPECT_EQ(attributes.value("SV.CommentEditor.CommentType"), "Description");
  EXPECT_EQ(attributes.value("SV.CommentEditor.CommentID"), "##SUMMARY");

  // An empty tree has no context.
  f.editor.Clear();
  keywords.clear();
  attributes.clear();
  f.editor.QueryContext(keywords, attributes);
  EXPECT_TRUE(keywords.isEmpty());
  EXPECT_TRUE(attributes.isEmpty());
}

TEST(ProjectEditorSettingsTest, SpellCheckingEverythingVisitsTheCommentedNodesOnly) {
  ProjectEditorFixture f;
  f.click("Geometry~Shapes~Circle~Draw");
  QStringList visits;
  QObject::connect(f.editor.ProjectViewControl(), &ProjectView::NodeClick, [&](TreeNode* node) {
    visits << node->Key() + (f.view().Enabled() ? QString() : QStringLiteral(" (tree off)"));
  });

  bool cancel = true;
  f.editor.SpellCheck(true, &cancel);
  EXPECT_EQ(visits.join('\n').toStdString(),
            "Geometry~Shapes (tree off)\n"
            "Geometry~Shapes~Circle (tree off)\n"
            "Geometry~Shapes~Circle~Area (tree off)");
  EXPECT_FALSE(cancel);
  EXPECT_TRUE(f.view().Enabled());
  EXPECT_EQ(f.element(), "Geometry~Shapes~Circle~Area");

  // Cancelling stops the walk after the node in hand.
  visits.clear();
  QObject::connect(f.editor.ProjectViewControl(), &ProjectView::NodeClick,
                   [&] { f.editor.CancelSpellCheck(); });
  f.editor.SpellCheck(true, &cancel);
  EXPECT_EQ(visits.join('\n').toStdString(), "Geometry~Shapes (tree off)");
  EXPECT_TRUE(f.view().Enabled());

  // The current element only: the selection stays.
  visits.clear();
  f.editor.SpellCheck(false, &cancel);
  EXPECT_TRUE(visits.isEmpty());
  EXPECT_FALSE(cancel);
  EXPECT_EQ(f.selected(), "Geometry~Shapes");
  EXPECT_EQ(f.services.message->Count(), 0);
}

}  // namespace
}  // namespace sv::test
