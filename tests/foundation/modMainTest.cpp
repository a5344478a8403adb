#include "foundation/modMain.h"

#include "foundation/CommonUI.h"
#include "foundation/modProjectView.h"
#include "support/FakeServices.h"

#include <gtest/gtest.h>
#include <QObject>
#include <QStringList>

namespace sv {
namespace {

TEST(ModMainTest, GetPathAsksTheFolderPicker) {
  test::FakeServices services;
  services.picker->Script("/home/ann/help");
  services.picker->Script("");
  services.picker->Script("/srv/out");
  QObject owner;

  EXPECT_EQ(GetPath(&owner, "Output folder", "/home/ann"), "/home/ann/help");
  EXPECT_EQ(GetPath(nullptr, "Output folder", "/home/ann"), "");
  // Without a start folder the picker opens at LastPath.
  setLastPath("/home/ann/last");
  EXPECT_EQ(GetPath(nullptr, "Choose", ""), "/srv/out");
  setLastPath(QString());

  EXPECT_EQ(services.picker->Requests(),
            (QStringList{"Folder|Output folder|/home/ann", "Folder|Output folder|/home/ann",
                         "Folder|Choose|/home/ann/last"}));
}

// Records what the hook is handed, as "object name themed includeChildren".
class RecordingCommonUI : public ICommonUI {
 public:
  void Configure(QObject* target, bool themed, bool includeChildren) override {
    calls << QStringLiteral("%1 %2 %3").arg(target->objectName()).arg(themed).arg(includeChildren);
  }
  QStringList calls;
};

TEST(ModMainTest, FormsGoToTheCommonUIHookWithBothOptions) {
  QObject form;
  form.setObjectName("frmInsertCode");
  ConfigureForCommonUI(&form);  // no hook: nothing to do

  auto hook = std::make_shared<RecordingCommonUI>();
  EXPECT_EQ(SetCommonUI(hook), nullptr);
  ConfigureForCommonUI(&form);
  EXPECT_EQ(SetCommonUI(nullptr), hook);
  ConfigureForCommonUI(&form);

  EXPECT_EQ(hook->calls, QStringList{"frmInsertCode 1 1"});
}

}  // namespace
}  // namespace sv
