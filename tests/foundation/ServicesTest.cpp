#include "foundation/Services.h"

#include "foundation/MessageBox.h"
#include "foundation/ScopedService.h"
#include "foundation/SystemTimerService.h"
#include "support/FakeServices.h"

#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace sv {
namespace {

TEST(ServicesTest, DefaultsAnswerHarmlesslyWithoutAHost) {
  testing::internal::CaptureStderr();
  const int answer =
      Services::Message().ShowMessage("Save changes?", Mb::YesNoCancel | Mb::DefaultButton2, "App");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "[App] Save changes?\n");
  EXPECT_EQ(answer, Mb::IdNo);

  EXPECT_EQ(Services::Picker().PickFolder("Choose", "/tmp", nullptr), QString());
  EXPECT_EQ(Services::Picker().PickSaveFile("Save", "Text|*.txt", "/tmp/a.txt", nullptr),
            QString());
  EXPECT_FALSE(Services::Shell().Open("https://example.com"));
  EXPECT_FALSE(Services::Tip().TipSeen("Welcome"));
  Services::Cursor().SetWaitCursor(true);
  EXPECT_TRUE(Services::Cursor().IsWaitCursor());
  Services::Cursor().SetWaitCursor(false);
}

TEST(ServicesTest, DefaultAnswerFollowsTheDefaultButton) {
  EXPECT_EQ(Mb::DefaultAnswer(Mb::OK | Mb::Exclamation), Mb::IdOK);
  EXPECT_EQ(Mb::DefaultAnswer(Mb::YesNo | Mb::Question), Mb::IdYes);
  EXPECT_EQ(Mb::DefaultAnswer(Mb::AbortRetryIgnore | Mb::DefaultButton3), Mb::IdIgnore);
  EXPECT_EQ(Mb::DefaultAnswer(Mb::RetryCancel | Mb::DefaultButton3), Mb::IdRetry);
}

TEST(ServicesTest, ScopedServicesNestAndRestore) {
  auto outer = std::make_shared<test::FakeMessageService>();
  {
    const ScopedService scopedOuter(outer);
    outer->Script({Mb::IdCancel});
    {
      test::FakeServices fakes;
      EXPECT_EQ(Services::Message().ShowMessage("inner", Mb::OKCancel, "t"), Mb::IdOK);
      EXPECT_EQ(fakes.message->Last(), "t|1|inner");
    }
    EXPECT_EQ(Services::Message().ShowMessage("outer", Mb::OKCancel, "t"), Mb::IdCancel);
    EXPECT_EQ(outer->Count(), 1);
  }
  testing::internal::CaptureStderr();
  Services::Message().ShowMessage("default again", Mb::OK, "t");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "[t] default again\n");
  EXPECT_EQ(outer->Count(), 1);
}

TEST(ServicesTest, FakesPlayTheUser) {
  test::FakeServices fakes;
  fakes.picker->Script("/home/ann/out");
  EXPECT_EQ(Services::Picker().PickFolder("Output", "/home/ann", nullptr), "/home/ann/out");
  EXPECT_EQ(Services::Picker().PickOpenFile("Open", "Projects|*.svp", "", nullptr), QString());
  EXPECT_EQ(fakes.picker->Requests(),
            (QStringList{"Folder|Output|/home/ann", "Open|Open|Projects|*.svp|"}));

  QObject form;
  fakes.dialog->Then([](QObject* shown) { shown->setObjectName("answered"); });
  Services::Dialog().ShowModal(&form, nullptr);
  EXPECT_EQ(form.objectName(), "answered");
  EXPECT_EQ(fakes.dialog->Shown(), QStringList{"QObject"});

  QString fired;
  const int cancelled = Services::Timer().SingleShot(5, [&] { fired += "c"; });
  Services::Timer().SingleShot(10, [&] {
    fired += "b";
    Services::Timer().SingleShot(0, [&] { fired += "d"; });
  });
  Services::Timer().SingleShot(1, [&] { fired += "a"; });
  Services::Timer().Cancel(cancelled);
  const QDateTime start = Services::Timer().Now();
  fakes.timer->Advance(9);
  EXPECT_EQ(fired, "a");
  fakes.timer->Advance(1);
  EXPECT_EQ(fired, "abd");
  EXPECT_EQ(start.msecsTo(Services::Timer().Now()), 10);
  EXPECT_EQ(fakes.timer->Pending(), 0);
}

TEST(ServicesTest, SystemTimerFiresFromTheEventLoopUnlessCancelled) {
  int argc = 1;
  char name[] = "ServicesTest";
  char* argv[] = {name, nullptr};
  QCoreApplication app(argc, argv);
  SystemTimerService timers;
  QEventLoop loop;
  QString fired;
  const int cancelled = timers.SingleShot(0, [&] { fired += "x"; });
  timers.SingleShot(0, [&] {
    fired += "a";
    loop.quit();
  });
  timers.Cancel(cancelled);
  // A guard against a hang if the timer never fires.
  QTimer::singleShot(5000, &loop, &QEventLoop::quit);
  loop.exec();
  EXPECT_EQ(fired, "a");
}

}  // namespace
}  // namespace sv
