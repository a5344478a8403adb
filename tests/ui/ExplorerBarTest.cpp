#include "ui/ExplorerBar.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "model/Error.h"

namespace sv {
namespace {

// A bar laid out as the comment editor lays out its pages, logging every event.
struct PageBar {
  PageBar() {
    bar.AddGroup("title", "Widget::resize");
    bar.AddGroup("main", "Pages");
    bar.AddGroup("flags", "Flags")->AddItem("checkboxcontainer");
    bar.AddGroup("other", "Other")->AddItem("other", "Other tags", "other");
    bar.AddGroup("Details", "Details", "other");
    bar.Group("main")->AddItem("inplaceedit:Member", "\"Member\" Page", "inplace");
    bar.Group("Details")->AddItem("##SUMMARY", "Description", "summary");
    bar.Group("Details")->AddItem("##REMARKS", "Remarks", "remarks");
    QObject::connect(&bar, &ExplorerBar::SelChange, [this](ExplorerBarItem* item) {
      log << "SelChange " + (item ? item->Key() : QStringLiteral("(none)"));
    });
    QObject::connect(&bar, &ExplorerBar::ItemClick,
                     [this](ExplorerBarItem* item) { log << "ItemClick " + item->Key(); });
    QObject::connect(&bar, &ExplorerBar::GroupExpand,
                     [this](ExplorerBarGroup* group) { log << "GroupExpand " + group->Key(); });
    QObject::connect(&bar, &ExplorerBar::GroupCollapse,
                     [this](ExplorerBarGroup* group) { log << "GroupCollapse " + group->Key(); });
  }
  std::string take() {
    std::string text = log.join(QStringLiteral(", ")).toStdString();
    log.clear();
    return text;
  }

  ExplorerBar bar;
  QStringList log;
};

TEST(ExplorerBarTest, GroupsKeepTheirOrderAndNewGroupsGoBeforeOther) {
  PageBar page;
  page.bar.Group("title")->setVisible(false);
  page.bar.FindItem("##summary")->setTicked(true);
  page.bar.FindItem("##REMARKS")->setEnabled(false);
  page.bar.Group("flags")->setExpanded(false);
  EXPECT_EQ(page.bar.Dump().toStdString(),
            "- Pages <main>\n"
            "  \"Member\" Page <inplaceedit:Member> {inplace}\n"
            "+ Flags <flags>\n"
            "   <checkboxcontainer>\n"
            "- Details <Details>\n"
            "  [x] Description <##SUMMARY> {summary}\n"
            "  Remarks <##REMARKS> {remarks} (disabled)\n"
            "- Other <other>\n"
            "  Other tags <other> {other}");

  EXPECT_THROW(page.bar.AddGroup("MAIN"), Error);
  EXPECT_THROW(page.bar.AddGroup("x", "", "missing"), Error);
  EXPECT_THROW(page.bar.Group("details")->AddItem("##summary"), Error);
  // Keys are unique within a group only; lookup takes the first in group order.
  page.bar.Group("main")->AddItem("##SUMMARY", "Copy");
  EXPECT_EQ(page.bar.FindItem("##SUMMARY")->Caption(), "Copy");
}

TEST(ExplorerBarTest, AUserClickSelectsThenReportsTheClick) {
  PageBar page;
  EXPECT_TRUE(page.bar.userClickItem("##REMARKS"));
  EXPECT_EQ(page.take(), "SelChange ##REMARKS, ItemClick ##REMARKS");
  EXPECT_TRUE(page.bar.FindItem("##REMARKS")->Selected());
  EXPECT_TRUE(page.bar.userClickItem("##remarks"));
  EXPECT_EQ(page.take(), "ItemClick ##REMARKS") << "the selection did not move";

  page.bar.FindItem("##SUMMARY")->setVisible(false);
  page.bar.FindItem("other")->setEnabled(false);
  page.bar.Group("main")->setExpanded(false);
  EXPECT_FALSE(page.bar.userClickItem("##SUMMARY"));
  EXPECT_FALSE(page.bar.userClickItem("other"));
  EXPECT_FALSE(page.bar.userClickItem("inplaceedit:member"));
  EXPECT_EQ(page.take(), "");
  EXPECT_THROW(page.bar.userClickItem("missing"), Error);
}

TEST(ExplorerBarTest, SelectingFromCodeRaisesSelChangeOnlyWhenItMoves) {
  PageBar page;
  bool populating = true;
  QStringList handled;
  QObject::connect(&page.bar, &ExplorerBar::SelChange, [&](ExplorerBarItem* item) {
    if (!populating && item) handled << item->Key();
  });
  page.bar.FindItem("##SUMMARY")->setSelected(true);
  page.bar.setSelectedItem(page.bar.FindItem("##summary"));
  EXPECT_EQ(page.take(), "SelChange ##SUMMARY");
  EXPECT_TRUE(handled.isEmpty()) << "the guard flag held the echo off";

  populating = false;
  page.bar.FindItem("##REMARKS")->setSelected(false);
  EXPECT_EQ(page.take(), "") << "deselecting an unselected item changes nothing";
  page.bar.FindItem("##SUMMARY")->setSelected(false);
  EXPECT_EQ(page.take(), "SelChange (none)");
  EXPECT_EQ(page.bar.SelectedItem(), nullptr);

  page.bar.userClickItem("other");
  page.take();
  page.bar.Group("other")->RemoveItem("other");
  EXPECT_EQ(page.bar.SelectedItem(), nullptr);
  EXPECT_EQ(page.take(), "") << "removing the selection raises nothing";
  page.bar.userClickItem("##SUMMARY");
  page.bar.RemoveGroup("details");
  EXPECT_EQ(page.bar.SelectedItem(), nullptr);
}

TEST(ExplorerBarTest, AHandlerThatRebuildsTheBarEndsTheClick) {
  PageBar page;
  QObject::connect(&page.bar, &ExplorerBar::SelChange, [&](ExplorerBarItem* item) {
    if (item && item->Key() == "##REMARKS") page.bar.Group("Details")->ClearItems();
  });
  EXPECT_TRUE(page.bar.userClickItem("##REMARKS"));
  EXPECT_EQ(page.take(), "SelChange ##REMARKS");
  EXPECT_EQ(page.bar.SelectedItem(), nullptr);
}

TEST(ExplorerBarTest, TogglingAGroupOpensAndClosesIt) {
  PageBar page;
  EXPECT_TRUE(page.bar.userToggleGroup("flags"));
  EXPECT_FALSE(page.bar.Group("flags")->Expanded());
  EXPECT_TRUE(page.bar.userToggleGroup("FLAGS"));
  EXPECT_EQ(page.take(), "GroupCollapse flags, GroupExpand flags");
  page.bar.Group("flags")->setExpanded(false);
  page.bar.Group("flags")->setVisible(false);
  EXPECT_FALSE(page.bar.userToggleGroup("flags"));
  EXPECT_EQ(page.take(), "") << "writing Expanded raises nothing";
}

TEST(ExplorerBarTest, RedrawLocksAreCountedAndRefreshesSeen) {
  PageBar page;
  QStringList redraws;
  QObject::connect(&page.bar, &ExplorerBar::redrawChanged,
                   [&](bool on) { redraws << (on ? "on" : "off"); });
  page.bar.LockRedraw();
  page.bar.LockRedraw();
  page.bar.UnlockRedraw();
  EXPECT_FALSE(page.bar.Redraw());
  page.bar.UnlockRedraw();
  EXPECT_EQ(redraws.join(' '), "off on");
  EXPECT_THROW(page.bar.UnlockRedraw(), Error);
  page.bar.Refresh();
  EXPECT_EQ(page.bar.RefreshCount(), 1);
}

}  // namespace
}  // namespace sv
