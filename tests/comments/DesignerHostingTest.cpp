// How the comment editor makes, shows, feeds and lets go of its designers, and what it answers
// them as their host.
#include <gtest/gtest.h>

#include "DesignerFixture.h"
#include "RecordingDesigner.h"
#include "comments/DesignerContainer.h"
#include "comments/DesignerControl.h"
#include "comments/DesignerRegistry.h"
#include "comments/IContentDesignerHost.h"
#include "model/CodeItem.h"
#include "model/NamespaceDef.h"
#include "model/TaggedCommentDef.h"
#include "project/core/DefinitionSet.h"
#include "project/model/ProjectModel.h"
#include "support/QtPrinters.h"
#include "ui/ExplorerBar.h"

namespace sv::test {
namespace {

// The fixture with every designer of the shipped class replaced by a recorder.
struct RecordedHosting : DesignerFixture {
  RecordedHosting() {
    watchDesigner = true;
    auto registry = DesignerRegistry::WithDefaults();
    registry->Register(DesignerRegistry::HTMLEditClass,
                       [this] { return std::make_shared<RecordingDesigner>(&calls); });
    editor.setDesignerRegistry(registry);
  }
  // The designers write to the log to the last: they go before it does.
  ~RecordedHosting() { editor.Terminate(); }
  std::string TakeCalls() {
    const QString text = calls.join('\n');
    calls.clear();
    return text.toStdString();
  }
  QStringList calls;
};

const char* const kDesigner = "SVContentDesigners5dsrHTMLEdit";

TEST(DesignerHostingTest, PageTagsOfOneClassShareOneDesigner) {
  RecordedHosting f;
  f.editor.setModules({"geometry", "shapes"});
  f.Load("geo::Circle", "Class");
  // Without layouts the first page of the first tag group is shown: its designer is made.
  EXPECT_EQ(f.TakeCalls(),
            "Initialize Circle ##SUMMARY comments=1 "
            "cells=ModuleNames,ProjectName,CodeElement,AppName,BaseURL,TagIdentifier host=1\n"
            "Shown\n"
            "Active 1\n"
            "LoadItem Circle ##SUMMARY comments=1");
  EXPECT_EQ(f.TakeEvents(), "ActiveDesignerChanged");
  EXPECT_EQ(f.Controls(), std::string("HTMLEdit\n") + kDesigner + " (visible) (front)");
  EXPECT_TRUE(f.editor.DesignerContainerVisible());
  EXPECT_EQ(f.editor.DesignerPanel()->Container(), "tagsContainer");
  const IContentDesigner* summary = f.editor.ActiveDesigner();

  // Another tag of the same class: the same designer, loaded with that tag's comments.
  ASSERT_TRUE(f.editor.eb()->userClickItem("##REMARKS"));
  EXPECT_EQ(f.TakeCalls(), "CommitEdit\nActive 1\nLoadItem Circle ##REMARKS comments=1");
  EXPECT_EQ(f.editor.ActiveDesigner(), summary);
  EXPECT_EQ(f.editor.ActiveTaggedCommentDef()->TagIdentifier(), "##REMARKS");
  ASSERT_TRUE(f.editor.eb()->userClickItem("##EXAMPLE"));
  EXPECT_EQ(f.TakeCalls(), "CommitEdit\nActive 1\nLoadItem Circle ##EXAMPLE comments=0");
  EXPECT_EQ(f.editor.CreatedDesigners().Count(), 1);
  EXPECT_EQ(f.editor.CreatedDesigners().Item(1), kDesigner);
  EXPECT_EQ(f.TakeEvents(), "");

  // The tag list comes forward: the designer is left and hidden.
  ASSERT_TRUE(f.editor.eb()->userClickItem("other"));
  EXPECT_EQ(f.TakeCalls(), "CommitEdit\nActive 0\nDeactivate");
  EXPECT_EQ(f.editor.ActiveDesigner(), nullptr);
  EXPECT_FALSE(f.editor.DesignerContainerVisible());
  EXPECT_EQ(f.editor.GetActiveHTMLEditor(), nullptr);
  EXPECT_EQ(f.TakeEvents(), "ActiveDesignerChanged none");

  // The next element keeps the page the author chose.
  ASSERT_TRUE(f.editor.eb()->userClickItem("##SUMMARY"));
  f.TakeCalls();
  f.Load("geo::Square", "Class");
  EXPECT_EQ(f.TakeCalls(), "Active 0\nDeactivate\nActive 1\nLoadItem Square ##SUMMARY comments=0");
  EXPECT_EQ(f.TakeEvents(),
            "ActiveDesignerChanged\nActiveDesignerChanged none\nActiveDesignerChanged");
  // A hidden companion comment is not the page's to edit.
  ASSERT_TRUE(f.editor.eb()->userClickItem("##SEEALSO"));
  EXPECT_EQ(f.TakeCalls(), "CommitEdit\nActive 1\nLoadItem Square ##SEEALSO comments=0");

  // The panel's new size goes to the designer on display.
  f.editor.DesignerPanel()->setSize(400, 300);
  const DesignerControl* control = f.editor.DesignerPanel()->Find(kDesigner);
  EXPECT_EQ(QString("%1 %2 %3 %4")
                .arg(control->Left())
                .arg(control->Top())
                .arg(control->Width())
                .arg(control->Height()),
            "0 0 400 300");
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(DesignerHostingTest, TagsWithoutAPageGetNoDesigner) {
  RecordedHosting f;
  f.Load("geo::Circle", "Class");
  f.TakeCalls();
  f.TakeEvents();
  // Flags are "{None}": no bar item, and no designer even when a host asks for the page.
  EXPECT_EQ(f.editor.eb()->FindItem("##EXCLUDE"), nullptr);
  f.editor.SelectCommentType("##EXCLUDE");
  EXPECT_EQ(f.editor.ActiveTaggedCommentDef(), nullptr);
  EXPECT_EQ(f.editor.GetDesignerObject("##EXCLUDE"), nullptr);

  // An unknown key: no definition, and the page on display stays.
  const IContentDesigner* shown = f.editor.ActiveDesigner();
  ASSERT_NE(shown, nullptr);
  f.editor.SelectCommentType("##NOSUCHTAG");
  EXPECT_EQ(f.editor.ActiveTaggedCommentDef(), nullptr);
  EXPECT_EQ(f.editor.ActiveDesigner(), shown);
  EXPECT_EQ(f.editor.GetDesignerObject("##NOSUCHTAG"), nullptr);
  EXPECT_EQ(f.editor.GetDesignerObject(""), nullptr);
  EXPECT_EQ(f.editor.CreatedDesigners().Count(), 1);
  EXPECT_EQ(f.TakeCalls(), "CommitEdit\nCommitEdit");
  EXPECT_EQ(f.TakeEvents(), "");
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(DesignerHostingTest, DesignersAskedForByThePageEditorAreMadeHidden) {
  RecordedHosting f;
  const auto designer = f.editor.GetDesignerObject("##REMARKS");
  ASSERT_NE(designer, nullptr);
  EXPECT_EQ(f.TakeCalls(),
            "Initialize (none) ##REMARKS comments=0 "
            "cells=ModuleNames,ProjectName,CodeElement,AppName,BaseURL,TagIdentifier host=1\n"
            "Shown");
  // Hidden, and not the one on display.
  EXPECT_EQ(f.Controls(), std::string("HTMLEdit\n") + kDesigner + " (front)");
  EXPECT_EQ(f.editor.ActiveDesigner(), nullptr);
  EXPECT_EQ(f.editor.ActiveTaggedCommentDef(), nullptr);
  EXPECT_FALSE(f.editor.DesignerContainerVisible());
  EXPECT_EQ(f.editor.GetDesignerObject("##SEEALSO"), designer);
  EXPECT_EQ(f.TakeCalls(), "");
  EXPECT_EQ(f.TakeEvents(), "");

  // Its page shown later: the same designer comes forward and shows.
  f.Load("geo::Circle", "Class");
  EXPECT_EQ(f.TakeCalls(), "Active 1\nLoadItem Circle ##SUMMARY comments=1");
  EXPECT_EQ(f.editor.ActiveDesigner(), designer.get());
  EXPECT_EQ(f.Controls(), std::string("HTMLEdit\n") + kDesigner + " (visible) (front)");
}

TEST(DesignerHostingTest, TerminateLetsEveryDesignerGoOnce) {
  RecordedHosting f;
  f.Load("geo::Circle", "Class");
  f.TakeCalls();
  f.TakeEvents();
  f.editor.Terminate();
  EXPECT_EQ(f.TakeCalls(), "Terminate");
  EXPECT_EQ(f.TakeEvents(), "ActiveDesignerChanged none");
  EXPECT_EQ(f.editor.CreatedDesigners().Count(), 0);
  EXPECT_EQ(f.Controls(), "");
  EXPECT_EQ(f.editor.HTMLEdit(), nullptr);
  EXPECT_EQ(f.editor.ActiveDesigner(), nullptr);
  f.editor.Terminate();
  EXPECT_EQ(f.TakeCalls(), "");
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(DesignerHostingTest, PageSwitchesLockTheHostsRefreshAndBindItsCommands) {
  RecordedHosting f;
  RecordingWrapper wrapper;
  f.editor.BindToWrapper(&wrapper);
  f.Load("geo::Circle", "Class");
  EXPECT_EQ(wrapper.Take(), "lockrefresh\nunlockrefreshabsolute");
  f.TakeCalls();
  ASSERT_TRUE(f.editor.eb()->userClickItem("##REMARKS"));
  EXPECT_EQ(wrapper.Take(), "lockrefresh\nunlockrefreshabsolute");
  EXPECT_EQ(f.TakeCalls(),
            "CommitEdit\nActive 1\nLoadItem Circle ##REMARKS comments=1\nBindToWrapper");
  ASSERT_TRUE(f.editor.eb()->userClickItem("other"));
  // The list is made on its first showing, which refreshes and shows it once more.
  EXPECT_EQ(wrapper.Take(), "BindTo 1 nothing\nBindTo 1 nothing");
  f.editor.setCurrentCodeElement(nullptr);
  EXPECT_EQ(wrapper.Take(), "BindTo 1 nothing");
  f.editor.BindToWrapper(nullptr);
}

TEST(DesignerHostingTest, TheHostAnswersItsDesigners) {
  RecordedHosting f;
  f.model.Project()->setFileName("/home/ann/My Docs/geometry.svproj");
  f.editor.setModules({"geometry"});
  f.Load("geo::Circle", "Class");
  const auto* designer = static_cast<const RecordingDesigner*>(f.editor.ActiveDesigner());
  IContentDesignerHost& host = f.editor.DesignerHost();

  // A file URL of the project's folder, with forward slashes only.
  EXPECT_EQ(host.BaseURL(), "file:///home/ann/My Docs/");
  EXPECT_EQ(CellText(designer->Cells(), "BaseURL"), "file:///home/ann/My Docs/");
  f.editor.setBaseURL("https://example.org/help/");
  EXPECT_EQ(host.BaseURL(), "https://example.org/help/");
  EXPECT_EQ(CellText(designer->Cells(), "AppName"), "Scrivara");
  EXPECT_EQ(CellTexts(designer->Cells(), "ModuleNames"), QStringList{"geometry"});
  EXPECT_EQ(CellItem(designer->Cells(), "CodeElement"), f.model.Item("geo::Circle"));
  EXPECT_EQ(CellText(designer->Cells(), "TagIdentifier"), "##SUMMARY");
  // Comments are kept by Id, so no comment is found under its tag's name.
  EXPECT_EQ(CellComment(designer->Cells(), "TaggedComment"), nullptr);

  EXPECT_EQ(host.AppName(), "Scrivara");
  EXPECT_EQ(host.CurrentItem(), f.model.Item("geo::Circle"));
  EXPECT_EQ(host.CurrentParentItem(), nullptr);
  EXPECT_EQ(host.CurrentRootItem(), f.model.Item("Geometry"));
  EXPECT_EQ(host.NamespaceDef()->Key(), "Class");
  EXPECT_EQ(host.CommentType(), 0);
  EXPECT_EQ(host.ModuleNames("ignored"), QStringList{"geometry"});
  EXPECT_EQ(host.ProjectNames(), QStringList{"Geometry"});
  f.editor.setProjectName("Geo");
  EXPECT_EQ(host.ProjectNames(), QStringList{"Geo"});
  EXPECT_EQ(host.GetObjectFromQualifiedName("geo::Square"), f.model.Item("geo::Square"));
  EXPECT_EQ(host.GetObjectFromQualifiedName("geo::Nothing"), nullptr);
  EXPECT_FALSE(host.IsDotNet());
  f.editor.setCurrentNamespaceDef(f.model.Definitions("sv.net")->Item("NET:Class"));
  EXPECT_TRUE(host.IsDotNet());

  // Each comment's designer writes its banner; they are joined in the element's order.
  EXPECT_EQ(host.GetDesignBannerContent(), "[##SUMMARY][##REMARKS]");

  QStringList requests;
  QObject::connect(
      &f.editor, &CommentEditor::BuildLinkRequestEx,
      [&](const QString& existing, bool getCaption, QString* caption, QString* link, bool,
          const QString& dialogCaption, const QString&, bool, bool getCategory, QString*) {
        requests << existing + QStringLiteral(" %1 %2 ").arg(getCaption).arg(getCategory) +
                        dialogCaption;
        *caption = "Square";
        *link = "geo::Square.html";
      });
  QString caption = "old caption";
  EXPECT_EQ(host.BuildLink("geo::Circle.html", true, &caption, false, "Get URL", "Link to", true),
            "geo::Square.html");
  EXPECT_EQ(caption, "Square");
  EXPECT_EQ(requests, QStringList{"geo::Circle.html 1 0 Get URL"});
  EXPECT_EQ(f.services.message->Count(), 0);
}

}  // namespace
}  // namespace sv::test
