#include "studio/PropertyListRenderer.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTextBrowser>
#include <QToolButton>

#include "StudioTestKit.h"

namespace sv {
namespace {

using test::DumpWidget;

class PropertyListRendererTest : public ::testing::Test {
 protected:
  PropertyListRendererTest() {
    mList.Add(QStringLiteral("general"), QStringLiteral("General"), PropertyRowKind::Heading);
    PropertyRow* title = mList.Add(QStringLiteral("title"), QStringLiteral("Title"));
    title->setValue(QStringLiteral("Circle"));
    title->setDescription(QStringLiteral("The page's heading."));
    mList.Add(QStringLiteral("author"), QStringLiteral("Author"))->setHasButton(true);
    mList.AddButton(QStringLiteral("remove"), 0, QStringLiteral("Remove"));
    QObject::connect(&mList, &PropertyList::SelChange, [this](PropertyRow* row) {
      mEvents << QStringLiteral("SelChange ") + row->Key();
    });
    QObject::connect(&mList, &PropertyList::BeforeEdit, [this](PropertyRow* row, bool*) {
      mEvents << QStringLiteral("BeforeEdit ") + row->Key();
    });
    QObject::connect(
        &mList, &PropertyList::AfterEdit, [this](PropertyRow* row, QVariant* value, bool*) {
          mEvents << QStringLiteral("AfterEdit %1 %2").arg(row->Key(), value->toString());
        });
    QObject::connect(&mList, &PropertyList::Change, [this](PropertyRow* row) {
      mEvents << QStringLiteral("Change ") + row->Key();
    });
    QObject::connect(&mList, &PropertyList::Collapse, [this](PropertyRow* row) {
      mEvents << QStringLiteral("Collapse ") + row->Key();
    });
    QObject::connect(&mList, &PropertyList::ButtonClick,
                     [this](PropertyRow* row, const QString& key) {
                       mEvents << QStringLiteral("ButtonClick %1 %2").arg(row->Key(), key);
                     });
    QObject::connect(&mList, &PropertyList::BeforeExtendedEdit, [this](PropertyRow* row, bool*) {
      mEvents << QStringLiteral("BeforeExtendedEdit ") + row->Key();
    });
    mView.resize(400, 400);
    mView.show();
  }

  PropertyList mList;
  PropertyListRenderer mView{&mList};
  QStringList mEvents;
};

TEST_F(PropertyListRendererTest, SelectingAndEditingACellGoThroughTheList) {
  EXPECT_EQ(DumpWidget(*mView.RowsView()),
            "- *General\n"
            "  Title = Circle\n"
            "  Author\n");
  EXPECT_FALSE(mView.ButtonFor(QStringLiteral("remove"))->isVisible()) << "no row selected";

  mView.RowsView()->setCurrentItem(mView.ItemFor(mList.Item(QStringLiteral("title"))));
  EXPECT_EQ(mEvents.join(", "), "SelChange title");
  EXPECT_EQ(mView.Description()->toPlainText(), "The page's heading.");
  EXPECT_TRUE(mView.ButtonFor(QStringLiteral("remove"))->isVisible());
  EXPECT_FALSE(mView.ButtonFor({})->isVisible()) << "the title row has no button of its own";

  mEvents.clear();
  QTest::keyClick(mView.RowsView(), Qt::Key_F2);
  ASSERT_NE(mView.Editor(), nullptr);
  mView.Editor()->clear();
  QTest::keyClicks(mView.Editor(), QStringLiteral("Disc"));
  EXPECT_EQ(mList.EditText(), "Disc");
  QTest::keyClick(mView.Editor(), Qt::Key_Return);
  EXPECT_EQ(mEvents.join(", "), "BeforeEdit title, AfterEdit title Disc, Change title");
  EXPECT_EQ(mView.Editor(), nullptr);
  EXPECT_EQ(DumpWidget(*mView.RowsView()),
            "- *General\n"
            "  Title = Disc <selected>\n"
            "  Author\n");

  mEvents.clear();
  QTest::mouseClick(mView.ButtonFor(QStringLiteral("remove")), Qt::LeftButton);
  mView.RowsView()->setCurrentItem(mView.ItemFor(mList.Item(QStringLiteral("author"))));
  QTest::mouseClick(mView.ButtonFor({}), Qt::LeftButton);
  mView.RowsView()->collapseItem(mView.ItemFor(mList.Item(QStringLiteral("general"))));
  EXPECT_EQ(mEvents.join(", "),
            "ButtonClick title remove, SelChange author, BeforeExtendedEdit author, "
            "Collapse general");
}

TEST_F(PropertyListRendererTest, EscapeDropsTheCellAndCodeChangesShow) {
  mList.setSelectedItem(mList.Item(QStringLiteral("title")));
  mList.BeginEdit();
  ASSERT_NE(mView.Editor(), nullptr);
  QTest::keyClicks(mView.Editor(), QStringLiteral("x"));
  QTest::keyClick(mView.Editor(), Qt::Key_Escape);
  EXPECT_FALSE(mList.EditMode());
  EXPECT_EQ(mList.Item(QStringLiteral("title"))->Value().toString(), "Circle");
  EXPECT_EQ(mView.Editor(), nullptr);

  mList.Item(QStringLiteral("author"))->setValue(QStringLiteral("Ann"));
  mList.Item(QStringLiteral("title"))->setHidden(true);
  mList.Add(QStringLiteral("date"), QStringLiteral("Date"));
  EXPECT_EQ(DumpWidget(*mView.RowsView()),
            "- *General\n"
            "  Title = Circle (hidden) <selected>\n"
            "  Author = Ann\n"
            "  Date\n");
}

}  // namespace
}  // namespace sv
