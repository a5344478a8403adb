#include "studio/ExplorerBarRenderer.h"

#include <gtest/gtest.h>

#include <QTest>

#include "StudioTestKit.h"

namespace sv {
namespace {

using test::DumpWidget;

TEST(ExplorerBarRendererTest, ShowsTheBarAndTurnsClicksIntoItsEvents) {
  ExplorerBar bar;
  ExplorerBarGroup* pages = bar.AddGroup(QStringLiteral("pages"), QStringLiteral("Pages"));
  pages->AddItem(QStringLiteral("summary"), QStringLiteral("Summary"))->setTicked(true);
  ExplorerBarItem* remarks = pages->AddItem(QStringLiteral("remarks"), QStringLiteral("Remarks"));
  bar.AddGroup(QStringLiteral("links"), QStringLiteral("Links"))
      ->AddItem(QStringLiteral("seealso"), QStringLiteral("See also"));
  QStringList events;
  QObject::connect(&bar, &ExplorerBar::SelChange, [&](ExplorerBarItem* item) {
    events << QStringLiteral("SelChange ") + (item ? item->Key() : QStringLiteral("none"));
  });
  QObject::connect(&bar, &ExplorerBar::ItemClick, [&](ExplorerBarItem* item) {
    events << QStringLiteral("ItemClick ") + item->Key();
  });
  QObject::connect(&bar, &ExplorerBar::GroupCollapse, [&](ExplorerBarGroup* group) {
    events << QStringLiteral("GroupCollapse ") + group->Key();
  });
  ExplorerBarRenderer view(&bar);
  view.resize(300, 300);
  view.show();
  EXPECT_EQ(DumpWidget(view),
            "- *Pages\n"
            "  [x] Summary\n"
            "  Remarks\n"
            "- *Links\n"
            "  See also\n");

  QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                    view.visualItemRect(view.ItemFor(remarks)).center());
  EXPECT_EQ(events.join(", "), "SelChange remarks, ItemClick remarks");
  EXPECT_TRUE(view.ItemFor(remarks)->isSelected());

  events.clear();
  view.collapseItem(view.ItemFor(bar.Group(QStringLiteral("links"))));
  EXPECT_EQ(events.join(", "), "GroupCollapse links");
  EXPECT_FALSE(bar.Group(QStringLiteral("links"))->Expanded());

  // The bar's own changes: a new item, a hidden one, a selection from code.
  events.clear();
  pages->AddItem(QStringLiteral("example"), QStringLiteral("Example"));
  remarks->setVisible(false);
  bar.setSelectedItem(bar.FindItem(QStringLiteral("summary")));
  EXPECT_EQ(DumpWidget(view),
            "- *Pages\n"
            "  [x] Summary <selected>\n"
            "  Remarks (hidden)\n"
            "  Example\n"
            "+ *Links\n"
            "  See also\n");
  EXPECT_EQ(events.join(", "), "SelChange summary");
}

}  // namespace
}  // namespace sv
