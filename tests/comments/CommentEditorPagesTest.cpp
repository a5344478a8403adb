// Which page is on display, across elements, and what the pages are told.
#include <gtest/gtest.h>

#include "EditorFixture.h"
#include "comments/CommentPages.h"
#include "foundation/modProjectView.h"
#include "model/CodeItem.h"
#include "model/TaggedCommentDef.h"
#include "support/TempSettings.h"
#include "ui/Dock.h"
#include "ui/ExplorerBar.h"
#include "ui/PropertyList.h"
#include "widgets/frmTipPopup.h"

namespace sv::test {
namespace {

// Records what the editor asks of its pages.
class RecordingPages : public CommentPages {
 public:
  void ShowList() override { calls << "ShowList"; }
  void ShowLayout(const std::shared_ptr<CodeItem>& item, const QString& layout) override {
    calls << "ShowLayout " + item->Name().value_or(QString()) + " " + layout;
  }
  void ShowTag(const std::shared_ptr<TaggedCommentDef>& def) override {
    calls << "ShowTag " + def->TagIdentifier();
  }
  void HideAll() override { calls << "HideAll"; }
  void UpdateDescription(const std::shared_ptr<CodeItem>& item, bool loading) override {
    calls << QStringLiteral("UpdateDescription %1 %2")
                 .arg(item->Name().value_or(QString()))
                 .arg(loading);
  }
  std::string Take() {
    const QString text = calls.join('\n');
    calls.clear();
    return text.toStdString();
  }
  QStringList calls;
};

std::string Selected(const EditorFixture& f) {
  const ExplorerBarItem* item = f.editor.eb()->SelectedItem();
  if (!item) return "(none)";
  return (item->Key() + (item->Tag().isEmpty() ? QString() : " tag=" + item->Tag())).toStdString();
}

TEST(CommentEditorPagesTest, TheChosenPageIsKeptAcrossElementsThatHaveIt) {
  EditorFixture f;
  f.Load("Geometry.Shapes.Circle", "SV:Class");
  EXPECT_EQ(Selected(f), "inplaceedit:Standard tag=x");

  ASSERT_TRUE(f.editor.eb()->userClickItem("##REMARKS"));
  EXPECT_EQ(Selected(f), "##REMARKS");
  f.Load("Geometry.Shapes.Circle.Area", "SV:Method");
  EXPECT_EQ(Selected(f), "##REMARKS");
  EXPECT_EQ(f.editor.DockCommentTypes()->Command("##REMARKS")->Value(), 1);
  f.Load("Geometry.Shapes.Radius", "SV:Property");
  EXPECT_EQ(Selected(f), "##REMARKS");

  // A property has no Example page and no layout: the first page of the fourth group.
  f.Load("Geometry.Shapes.Circle", "SV:Class");
  ASSERT_TRUE(f.editor.eb()->userClickItem("##EXAMPLE"));
  f.Load("Geometry.Shapes.Radius", "SV:Property");
  EXPECT_EQ(Selected(f), "##SUMMARY tag=x");
  // The editor chose that page, and the property has no layouts: the next element starts over.
  f.Load("Geometry.Shapes.Circle", "SV:Class");
  EXPECT_EQ(Selected(f), "inplaceedit:Standard tag=x");

  // With the setting, even a page the editor chose is kept.
  f.editor.setKeepPageAcrossElements(true);
  ASSERT_TRUE(f.editor.eb()->userClickItem("##REMARKS"));
  f.Load("Geometry.Shapes.Radius", "SV:Property");
  f.Load("Geometry.Shapes.Square", "SV:Class");
  EXPECT_EQ(Selected(f), "##REMARKS");
  f.Load("Geometry.Shapes.Circle", "SV:Class");
  f.editor.eb()->userClickItem("inplaceedit:Standard");
  f.Load("Geometry.Shapes.Circle.Draw", "SV:Method");
  EXPECT_EQ(Selected(f), "inplaceedit:Standard");
  EXPECT_EQ(f.Toolbar().substr(0, 64),
            "p-fullpageedit=1 {fullpageedit}\n  inplaceedit:Standard (current)");
}

TEST(CommentEditorPagesTest, PagesAreShownThroughTheSeam) {
  EditorFixture f;
  auto pages = std::make_shared<RecordingPages>();
  f.editor.setPages(pages);
  f.editor.setShowCombo(true);
  f.Load("Geometry.Shapes.Circle", "SV:Class");
  EXPECT_EQ(pages->Take(), "UpdateDescription Circle 1\nShowLayout Circle Standard");
  EXPECT_FALSE(f.editor.eb()->Visible());
  EXPECT_TRUE(f.editor.InPlaceEditorIsActive());

  ASSERT_TRUE(f.editor.DockCommentTypes()->userClick("##SUMMARY"));
  EXPECT_EQ(pages->Take(), "ShowTag ##SUMMARY");
  EXPECT_FALSE(f.editor.InPlaceEditorIsActive());
  EXPECT_EQ(Selected(f), "##SUMMARY");
  EXPECT_EQ(f.editor.ActiveTaggedCommentDef()->TagIdentifier(), "##SUMMARY");
  ASSERT_TRUE(f.editor.DockCommentTypes()->userClick("TipPopup"));
  EXPECT_EQ(f.editor.TipPopup()->TipText(),
            "<p><b>Description</b></p><p>What the element is for.</p>");

  // An unknown key selects nothing and still reaches the page choice, which finds no tag.
  f.editor.SelectCommentType("##UNKNOWN", true);
  EXPECT_EQ(Selected(f), "##SUMMARY");
  EXPECT_EQ(pages->Take(), "");

  ASSERT_TRUE(f.editor.DockCommentTypes()->userClick("other"));
  EXPECT_EQ(pages->Take(), "ShowList\nShowList");
  f.editor.SelectInPlaceEditLayout("Standard");
  EXPECT_EQ(pages->Take(), "ShowLayout Circle Standard");
  EXPECT_FALSE(f.editor.TagsList()->Visible());

  // Another kind of element keeps the layout the author chose.
  f.Load("Geometry.Shapes.Circle.Area", "SV:Method");
  EXPECT_EQ(pages->Take(), "UpdateDescription Area 1\nShowLayout Area Standard");
  f.editor.setCurrentCodeElement(nullptr);
  EXPECT_EQ(pages->Take(), "HideAll");
  EXPECT_EQ(f.services.message->Count(), 0);
}

TEST(CommentEditorPagesTest, TheTagListOpensWithTheDescriptionPaneAsLastLeft) {
  TempSettings settings;
  {
    EditorFixture f;
    PropertyList* list = f.editor.TagsList();
    EXPECT_TRUE(list->DescriptionVisible());
    EXPECT_EQ(list->DescriptionHeight(), 49);
  }
  SetAppValue(QStringLiteral("Visible"), false, QStringLiteral("Layout\\DescriptionPane"));
  SetAppValue(QStringLiteral("Height"), 80, QStringLiteral("Layout\\DescriptionPane"));
  EditorFixture f;
  PropertyList* list = f.editor.TagsList();
  EXPECT_FALSE(list->DescriptionVisible());
  EXPECT_EQ(list->DescriptionHeight(), 80);
}

}  // namespace
}  // namespace sv::test
