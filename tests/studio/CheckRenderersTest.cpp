#include <gtest/gtest.h>

#include <QTest>

#include "StudioTestKit.h"
#include "studio/CheckBoxRenderer.h"
#include "studio/CorvaCheckboxRenderer.h"
#include "studio/ListBoxRenderer.h"

namespace sv {
namespace {

TEST(CheckBoxRendererTest, ClicksFlipTheBoxAndTheBoxIsWhatShows) {
  CheckBox box;
  box.setCaption(QStringLiteral("Show members"));
  int clicks = 0;
  QObject::connect(&box, &CheckBox::Click, [&] { ++clicks; });
  CheckBoxRenderer view(&box);
  view.show();
  EXPECT_EQ(view.text(), "Show members");

  QTest::mouseClick(&view, Qt::LeftButton);
  EXPECT_EQ(box.Value(), 1);
  EXPECT_TRUE(view.isChecked());
  EXPECT_EQ(clicks, 1);

  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_EQ(box.Value(), 0);
  EXPECT_EQ(clicks, 2);

  box.setValue(1);
  box.setEnabled(false);
  EXPECT_TRUE(view.isChecked());
  EXPECT_FALSE(view.isEnabled());
  box.setVisible(false);
  EXPECT_FALSE(view.isVisible());
  box.setVisible(true);
  EXPECT_TRUE(view.isVisible());
}

TEST(CorvaCheckboxRendererTest, MouseFocusAndSpaceReachTheBox) {
  CorvaCheckbox box;
  box.setCaption(QStringLiteral("Inherited"));
  int clicks = 0;
  QObject::connect(&box, &CorvaCheckbox::Click, [&] { ++clicks; });
  CorvaCheckboxRenderer view(&box);
  view.show();

  QTest::mousePress(&view, Qt::LeftButton);
  EXPECT_TRUE(box.Pressed());
  QTest::mouseRelease(&view, Qt::LeftButton);
  EXPECT_FALSE(box.Pressed());
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(box.Value(), 1);
  EXPECT_TRUE(view.isChecked());

  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_EQ(clicks, 2) << "Space clicks once, on release";
  EXPECT_EQ(box.Value(), 0);
  EXPECT_FALSE(view.isChecked());

  box.setCaption(QStringLiteral("Inherited members"));
  box.setEnabled(false);
  EXPECT_EQ(view.text(), "Inherited members");
  EXPECT_FALSE(view.isEnabled());
}

TEST(ListBoxRendererTest, AClickTicksACheckListEntry) {
  ListBox list;
  list.setStyle(ListStyle::CheckBox);
  for (const char* text : {"Public", "Protected", "Private"})
    list.AddItem(QString::fromLatin1(text));
  QStringList events;
  QObject::connect(&list, &ListBox::ItemCheck,
                   [&](int index) { events << QStringLiteral("ItemCheck %1").arg(index); });
  QObject::connect(&list, &ListBox::Click, [&] { events << QStringLiteral("Click"); });
  ListBoxRenderer view(&list);
  view.show();

  QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                    view.visualItemRect(view.item(1)).center());
  EXPECT_EQ(events.join(", "), "ItemCheck 1, Click");
  EXPECT_EQ(test::DumpWidget(view),
            "[ ] Public\n"
            "[x] Protected <focus>\n"
            "[ ] Private\n");

  list.setStyle(ListStyle::Standard);
  list.setList(2, QStringLiteral("Friend"));
  list.setListIndex(0);
  EXPECT_EQ(test::DumpWidget(view),
            "Public <selected> <focus>\n"
            "Protected\n"
            "Friend\n");
}

}  // namespace
}  // namespace sv
