#include "codetree/frmFilterProperties.h"

#include <gtest/gtest.h>

#include "support/FakeServices.h"

namespace sv::test {
namespace {

TEST(frmFilterPropertiesTest, ARegularExpressionMustCompileBeforeOK) {
  FakeServices services;
  frmFilterProperties form;
  form.setRegExpMode(true);
  services.dialog->Then([](QObject* shown) {
    auto* dialog = qobject_cast<frmFilterProperties*>(shown);
    dialog->userActivate();
    dialog->userType("Get(");
    dialog->userClickOK();
    EXPECT_TRUE(dialog->Visible()) << "the dialog stays open";
    dialog->userType("^Get.*");
    dialog->userClickOK();
  });
  form.Show();
  EXPECT_EQ(services.dialog->Shown().join(","), "sv::frmFilterProperties");
  EXPECT_EQ(services.message->Last(),
            "Invalid Regular Expression|48|Get(  is not a valid Regular Expression.");
  EXPECT_EQ(services.message->Count(), 1);
  EXPECT_EQ(services.tip->Shown().join(","), "FilterRegExp");
  EXPECT_FALSE(form.Visible());
  EXPECT_FALSE(form.Cancelled());
  EXPECT_EQ(form.Wildcard(), "^Get.*");
}

TEST(frmFilterPropertiesTest, WildcardsAreTakenAsTheyAreAndClosingCancels) {
  FakeServices services;
  frmFilterProperties form;
  services.dialog->Then([](QObject* shown) {
    auto* dialog = qobject_cast<frmFilterProperties*>(shown);
    dialog->userActivate();
    dialog->userType("Get(*");
    dialog->userClickOK();
  });
  form.Show();
  EXPECT_FALSE(form.Cancelled());
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(services.message->Count(), 0) << "no check in wildcard mode";
  EXPECT_EQ(services.tip->Shown().join(","), "FilterWildcard");

  services.dialog->Then(
      [](QObject* shown) { qobject_cast<frmFilterProperties*>(shown)->userClose(); });
  form.Show();
  EXPECT_TRUE(form.Cancelled()) << "the window's close box counts as Cancel";
  EXPECT_FALSE(form.Visible());
}

}  // namespace
}  // namespace sv::test
