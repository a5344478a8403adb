// Writing on a designer's page reaches the tree and the host; the spell check walks the pages.
#include <gtest/gtest.h>

#include "ProjectEditorFixture.h"
#include "comments/CommentEditor.h"
#include "comments/DesignerRegistry.h"
#include "comments/designers/HtmlEditDesigner.h"
#include "foundation/SpellingEngine.h"
#include "model/CodeItem.h"
#include "model/TaggedCommentDef.h"
#include "ui/ExplorerBar.h"
#include "ui/HtmlEditor.h"
#include "ui/TreeView.h"

namespace sv::test {
namespace {

const QString kCircleDraw = QStringLiteral("Geometry~Shapes~Circle~Draw");

// An engine that only needs to be there: the designers do the checking.
class SilentEngine : public ISpellingEngine {
 public:
  void setOptionBtnCaption(const QString&) override {}
  void setSuggest(bool) override {}
  void setIgnoreInUpperCase(bool) override {}
  void setIgnoreWithNumbers(bool) override {}
  void setIgnoreInMixedCase(bool) override {}
  void setMainDictFile(const QString&) override {}
  void setCustomDictFile(const QString&) override {}
};

// The HTML page that can check its spelling: it notes the element and page it checked, and
// the author cancels on the page named by cancelOn.
class CheckingDesigner : public HtmlEditDesigner {
 public:
  CheckingDesigner(const CommentEditor& editor, QStringList& log, QString cancelOn)
      : mEditor(editor), mLog(log), mCancelOn(std::move(cancelOn)) {}
  bool Supports(const QString& feature) const override { return feature == "SpellCheck"; }
  bool SpellCheck(bool* Cancelled) override {
    const QString page = mEditor.CurrentCodeElement()->QualifiedName().value_or(QString()) +
                         QLatin1Char(' ') + mEditor.ActiveTaggedCommentDef()->TagIdentifier();
    mLog << page;
    *Cancelled = page == mCancelOn;
    return !*Cancelled;
  }

 private:
  const CommentEditor& mEditor;
  QStringList& mLog;
  QString mCancelOn;
};

TEST(ProjectEditorDesignerTest, TypingOnTheDescriptionPageCommentsTheItem) {
  ProjectEditorFixture f;
  f.click(kCircleDraw);
  EXPECT_FALSE(f.node(kCircleDraw)->Bold());
  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("##SUMMARY"));
  HtmlEditor* page = f.commentEditor().GetActiveHTMLEditor();
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(f.wrapper.boundTo, page);
  f.TakeEvents();

  // The first keystroke makes the comment, the next ones change it.
  page->userType("Draws the circle");
  EXPECT_EQ(f.TakeEvents(), "TaggedCommentAdded Geometry~Shapes~Circle~Draw ##SUMMARY");
  page->userType(".");
  EXPECT_EQ(f.TakeEvents(),
            "TaggedCommentChanged Geometry~Shapes~Circle~Draw ##SUMMARY \"Draws the circle.\"");
  EXPECT_TRUE(f.node(kCircleDraw)->Bold());
  EXPECT_TRUE(f.commentEditor().Dirty());
  EXPECT_NE(f.comments(kCircleDraw).find("Draws the circle."), std::string::npos);
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(ProjectEditorDesignerTest, SpellCheckingEverythingChecksThePagesWithContent) {
  ProjectEditorFixture f;
  QStringList checked;
  auto registry = DesignerRegistry::WithDefaults();
  registry->Register(DesignerRegistry::HTMLEditClass, [&] {
    return std::make_shared<CheckingDesigner>(f.commentEditor(), checked,
                                              QStringLiteral("Geometry~Shapes~Circle ##REMARKS"));
  });
  f.commentEditor().setDesignerRegistry(registry);
  f.click("Geometry~Shapes~Circle~Area");

  // Without an engine there is nothing that could check: no page is visited.
  bool cancel = true;
  f.editor.SpellCheck(true, &cancel);
  EXPECT_FALSE(cancel);
  EXPECT_TRUE(checked.isEmpty());

  // With one, each commented item's pages with content; Area's comment is in the list only.
  f.editor.SetSpellObject(std::make_shared<SilentEngine>());
  f.editor.SpellCheck(true, &cancel);
  EXPECT_EQ(checked.join('\n').toStdString(),
            "Geometry~Shapes ##SUMMARY\n"
            "Geometry~Shapes~Circle ##SUMMARY");
  EXPECT_FALSE(cancel);

  // Cancelled on a page: the walk ends there and the caller learns of it.
  checked.clear();
  f.click("Geometry~Shapes~Circle");
  ASSERT_TRUE(f.commentEditor().eb()->userClickItem("##REMARKS"));
  f.commentEditor().GetActiveHTMLEditor()->userType("Drawn with a compass.");
  f.editor.SpellCheck(true, &cancel);
  EXPECT_EQ(checked.join('\n').toStdString(),
            "Geometry~Shapes ##SUMMARY\n"
            "Geometry~Shapes~Circle ##SUMMARY\n"
            "Geometry~Shapes~Circle ##REMARKS");
  EXPECT_TRUE(cancel);
  EXPECT_EQ(f.selected(), "Geometry~Shapes~Circle");
  EXPECT_EQ(f.services.message->Count(), 0);
}

}  // namespace
}  // namespace sv::test
