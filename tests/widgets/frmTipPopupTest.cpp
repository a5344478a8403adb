#include "widgets/frmTipPopup.h"

#include <gtest/gtest.h>

#include "FixedTextMeasurer.h"

namespace sv {
namespace {

TEST(frmTipPopupTest, TheWindowFitsAroundTheTipWithTheLabelsMargins) {
  test::ScopedFixedTextMeasurer measurer;
  frmTipPopup tip;
  tip.setTipText("<p><b>Remarks</b></p><p>Longer &amp; wider</p>");
  EXPECT_EQ(tip.TipText(), "<p><b>Remarks</b></p><p>Longer &amp; wider</p>");
  EXPECT_EQ(tip.TipLabel().Width, 140);
  EXPECT_EQ(tip.TipLabel().Height, 40);
  EXPECT_EQ(tip.Width(), 2 * 4 + 140);
  EXPECT_EQ(tip.Height(), 2 * 4 + 40);

  tip.setTipText("");
  EXPECT_EQ(tip.Width(), 8);
  EXPECT_EQ(tip.Height(), 8);
}

}  // namespace
}  // namespace sv
