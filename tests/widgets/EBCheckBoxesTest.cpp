#include "widgets/EBCheckBoxes.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "FixedTextMeasurer.h"
#include "model/Error.h"
#include "support/FakeServices.h"

namespace sv {
namespace {

// The comment editor's flag pane: a bar whose "flags" group hosts the boxes in one item.
struct FlagPane {
  FlagPane() {
    bar.setBackColor(0x00FF00);
    bar.setWidth(2400);
    bar.setTabIndex(7);
    bar.setStyle(1);
    container = bar.AddGroup("flags", "Flags")->AddItem("checkboxcontainer");
    ExplorerBarClient client;
    client.Width = 2400;
    client.BackColor = 0xFFFFFF;
    container->setClient(client);
    QObject::connect(&boxes, &EBCheckBoxes::Click, [this](int index) {
      clicks << QStringLiteral("Click %1 %2").arg(index).arg(boxes.Item(index)->Value());
    });
  }
  // Each box of the array after the template as "index tag 'caption' at left,top widthxheight
  // tab n".
  std::string dump() const {
    QStringList lines;
    for (int index = 1; index < boxes.Count(); ++index) {
      const CheckBox* box = boxes.Item(index);
      lines << QStringLiteral("%1 %2 '%3' at %4,%5 %6x%7 tab %8")
                   .arg(box->Index())
                   .arg(box->Tag(), box->Caption())
                   .arg(box->Left())
                   .arg(box->Top())
                   .arg(box->Width())
                   .arg(box->Height())
                   .arg(box->TabIndex());
    }
    return lines.join('\n').toStdString();
  }

  test::FakeServices services;
  ExplorerBar bar;
  ExplorerBarItem* container;
  EBCheckBoxes boxes;
  QStringList clicks;
};

TEST(EBCheckBoxesTest, BoxesStackInTheItemsClientInTabOrder) {
  FlagPane pane;
  CheckBox* hidden = pane.boxes.AddCheckbox(&pane.bar, pane.container, "Hidden", "##HIDDEN",
                                            "Leaves the item out of the help");
  pane.boxes.AddCheckbox(&pane.bar, pane.container, "Obsolete member, kept for compatibility",
                         "##OBSOLETE", "Obsolete");
  EXPECT_EQ(pane.dump(),
            "1 ##HIDDEN 'Hidden' at 45,0 2355x255 tab 8\n"
            "2 ##OBSOLETE 'Obsolete member, kept for compatibility' at 45,255 2355x255 tab 9");
  EXPECT_EQ(hidden->ToolTipText(), "Leaves the item out of the help");
  EXPECT_EQ(hidden->BackColor(), 0x00FF00u);
  EXPECT_EQ(hidden->Font(), pane.bar.Font());
  EXPECT_EQ(hidden->ForeColor(), SystemColor::ButtonText) << "no bar or theme colour to take";
  EXPECT_TRUE(hidden->Visible());
  EXPECT_EQ(hidden->RefreshCount(), 1);
  EXPECT_EQ(pane.bar.Tag(), "9");

  const ExplorerBarClient& client = pane.container->Client();
  EXPECT_EQ(client.Tag, 2);
  EXPECT_FALSE(client.Border);
  EXPECT_EQ(client.BackColor, 0x00FF00u);
  EXPECT_EQ(pane.services.message->Count(), 0);
}

TEST(EBCheckBoxesTest, BoxClicksReachTheArraysClickWithTheirIndex) {
  FlagPane pane;
  pane.boxes.AddCheckbox(&pane.bar, pane.container, "Hidden", "##HIDDEN", "");
  CheckBox* obsolete =
      pane.boxes.AddCheckbox(&pane.bar, pane.container, "Obsolete", "##OBSOLETE", "");
  obsolete->userClick();
  pane.boxes.Item(1)->setValue(1);
  EXPECT_EQ(pane.clicks.join(", ").toStdString(), "Click 2 1, Click 1 1");
}

TEST(EBCheckBoxesTest, ThePlainStyleHasNoIndentAndTheBarsTextColourWins) {
  FlagPane pane;
  pane.bar.setStyle(0);
  pane.bar.setItemTextColor(0x000080);
  CheckBox* box = pane.boxes.AddCheckbox(&pane.bar, pane.container, "Hidden", "##HIDDEN", "");
  EXPECT_EQ(box->Left(), 0);
  EXPECT_EQ(box->Width(), 2400);
  EXPECT_EQ(box->ForeColor(), 0x000080u);
}

TEST(EBCheckBoxesTest, AThemeColoursTheBarAndTheBoxes) {
  FlagPane pane;
  pane.boxes.SetupExplorerBar(&pane.bar);
  EXPECT_EQ(pane.bar.BackColor(), 0x00FF00u) << "no theme, no change";
  test::ScopedFakeTheme theme;
  pane.boxes.SetupExplorerBar(&pane.bar);
  EXPECT_EQ(pane.bar.BackColor(), 0xD6DFF7u);
  CheckBox* box = pane.boxes.AddCheckbox(&pane.bar, pane.container, "Hidden", "##HIDDEN", "");
  EXPECT_EQ(box->ForeColor(), 0x215DC6u);
  EXPECT_EQ(box->BackColor(), 0xD6DFF7u);
}

TEST(EBCheckBoxesTest, ResizingFitsTheItemAndTheCaptions) {
  FlagPane pane;
  test::ScopedFixedTextMeasurer measurer;
  pane.boxes.AddCheckbox(&pane.bar, pane.container, "Hidden", "##HIDDEN", "");
  pane.boxes.AddCheckbox(&pane.bar, pane.container, "Obsolete member, kept for compatibility",
                         "##OBSOLETE", "");
  pane.boxes.ResizeToItems(2, pane.container);
  EXPECT_EQ(pane.container->Client().Height, 510);
  EXPECT_EQ(pane.container->Height(), 34);

  // 160 pixels of bar less two margins and indents of 12, plus 3: 139 pixels a box, of which
  // the check mark takes 17, leaving room for 12 characters of 10 pixels.
  pane.boxes.ResizeCheckboxes(&pane.bar);
  EXPECT_EQ(pane.dump(),
            "1 ##HIDDEN 'Hidden' at 45,0 2085x255 tab 8\n"
            "2 ##OBSOLETE 'Obsolete ...' at 45,255 2085x255 tab 9");
  EXPECT_EQ(pane.boxes.Captions().value(2), "Obsolete member, kept for compatibility");

  pane.bar.setWidth(300);
  pane.boxes.ResizeCheckboxes(&pane.bar);
  EXPECT_EQ(pane.boxes.Item(1)->Width(), 2085) << "a bar too narrow leaves the boxes alone";
}

TEST(EBCheckBoxesTest, ClearKeepsOnlyTheTemplate) {
  FlagPane pane;
  pane.boxes.AddCheckbox(&pane.bar, pane.container, "Hidden", "##HIDDEN", "");
  pane.boxes.Clear();
  EXPECT_EQ(pane.boxes.Count(), 1);
  EXPECT_EQ(pane.boxes.Captions().size(), 1);
  EXPECT_FALSE(pane.boxes.Item(0)->Visible());
  pane.boxes.ResizeCheckboxes(&pane.bar);
  pane.boxes.ResizeToItems(1, pane.container);
  ASSERT_EQ(pane.services.message->Count(), 1) << "sizing to a box that is not there fails";
  EXPECT_TRUE(pane.services.message->Last().contains("Procedure: ResizeToItems"));
}

TEST(EBCheckBoxesTest, ScalesConvertThroughTwips) {
  EXPECT_DOUBLE_EQ(EBCheckBoxes::ScaleX(1, EBCheckBoxes::Characters, EBCheckBoxes::Twips), 240);
  EXPECT_DOUBLE_EQ(EBCheckBoxes::ScaleY(1, EBCheckBoxes::Characters, EBCheckBoxes::Twips), 120);
  EXPECT_DOUBLE_EQ(EBCheckBoxes::ScaleX(3, EBCheckBoxes::Pixels, EBCheckBoxes::Twips), 45);
  EXPECT_DOUBLE_EQ(EBCheckBoxes::ScaleY(1440, EBCheckBoxes::Twips, EBCheckBoxes::Inches), 1);
  EXPECT_DOUBLE_EQ(EBCheckBoxes::ScaleX(2, EBCheckBoxes::Points, EBCheckBoxes::Pixels), 40.0 / 15);
  EXPECT_DOUBLE_EQ(EBCheckBoxes::ScaleY(1, EBCheckBoxes::Centimetres, EBCheckBoxes::Millimetres),
                   10);
  EXPECT_THROW(EBCheckBoxes::ScaleX(1, 0, EBCheckBoxes::Twips), Error);
}

}  // namespace
}  // namespace sv
