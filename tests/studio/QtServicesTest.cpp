#include <gtest/gtest.h>

#include <QDialog>
#include <QPushButton>
#include <QTimer>

#include "StudioTestKit.h"
#include "foundation/MessageBox.h"
#include "foundation/Services.h"
#include "model/Error.h"
#include "studio/QtMessageService.h"
#include "studio/QtPickerService.h"
#include "studio/QtServices.h"
#include "studio/QtShellService.h"
#include "studio/TreeRenderer.h"
#include "ui/TextMeasure.h"
#include "ui/VisualTheme.h"

namespace sv {
namespace {

QString describe(const QMessageBox& box) {
  QStringList buttons;
  for (QAbstractButton* button : box.buttons())
    buttons << QString::number(QtMessageService::AnswerFor(box.standardButton(button)));
  std::sort(buttons.begin(), buttons.end());
  auto answerOf = [&](QAbstractButton* button) {
    return button ? QString::number(QtMessageService::AnswerFor(box.standardButton(button)))
                  : QStringLiteral("none");
  };
  return QStringLiteral("'%1' '%2' icon %3 buttons %4 default %5 escape %6")
      .arg(box.windowTitle(), box.text())
      .arg(box.icon())
      .arg(buttons.join(' '))
      .arg(answerOf(box.defaultButton()), answerOf(box.escapeButton()));
}

TEST(QtMessageServiceTest, FlagsBecomeTheBoxesButtonsIconAndDefault) {
  using namespace Mb;
  EXPECT_EQ(describe(*QtMessageService::MakeBox(
                "Save changes?", YesNoCancel | Question | DefaultButton2, "Scrivara")),
            "'Scrivara' 'Save changes?' icon 4 buttons 2 6 7 default 7 escape 2");
  EXPECT_EQ(describe(*QtMessageService::MakeBox("<b>Done</b>", Information, "")),
            "'' '<b>Done</b>' icon 1 buttons 1 default 1 escape 1");
  EXPECT_EQ(describe(*QtMessageService::MakeBox("Disk",
                                                AbortRetryIgnore | Critical | DefaultButton3, "T")),
            "'T' 'Disk' icon 3 buttons 3 4 5 default 5 escape none");
  EXPECT_EQ(
      describe(*QtMessageService::MakeBox("Delete?", YesNo | Exclamation | DefaultButton3, "T")),
      "'T' 'Delete?' icon 2 buttons 6 7 default 6 escape none")
      << "a default the box lacks falls back to its first button";
}

TEST(QtMessageServiceTest, ShowMessageAnswersTheButtonPressed) {
  QtMessageService service;
  auto press = [](QMessageBox::StandardButton which) {
    QTimer::singleShot(0, [which] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      box->button(which)->click();
    });
  };
  press(QMessageBox::Retry);
  EXPECT_EQ(service.ShowMessage("Try again?", Mb::RetryCancel, "Links"), Mb::IdRetry);
  press(QMessageBox::No);
  EXPECT_EQ(service.ShowMessage("Keep?", Mb::YesNoCancel, "Links"), Mb::IdNo);
  QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
  EXPECT_EQ(service.ShowMessage("Go on?", Mb::OKCancel, "Links"), Mb::IdCancel)
      << "closing the window is Cancel";
}

class Form : public QObject {
  Q_OBJECT

 public:
  bool Success = false;
};

TEST(QtServicesTest, InstallingPutsTheQtServicesInPlaceUntilDropped) {
  {
    const auto services = InstallQtServices();
    EXPECT_NE(dynamic_cast<QtMessageService*>(&Services::Message()), nullptr);
    EXPECT_TRUE(VisualThemeActive());
    EXPECT_GT(TextWidth(QStringLiteral("Wide text"), QStringLiteral("Sans, 10")),
              TextWidth(QStringLiteral("W"), QStringLiteral("Sans, 10")));

    Services::Cursor().SetWaitCursor(true);
    Services::Cursor().SetWaitCursor(true);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    Services::Cursor().SetWaitCursor(false);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "one override, however often set";

    // A dialog finds its owner through the widget drawing the owner's state.
    TreeView ownerState;
    TreeRenderer ownerView(&ownerState);
    QWidget* ownerSeen = nullptr;
    services->Dialog().Register(QString::fromLatin1(Form::staticMetaObject.className()),
                                [&](QObject* form, QWidget* owner) {
                                  ownerSeen = owner;
                                  auto dialog = std::make_unique<QDialog>(owner);
                                  QTimer::singleShot(0, dialog.get(), [form, d = dialog.get()] {
                                    static_cast<Form*>(form)->Success = true;
                                    d->accept();
                                  });
                                  return dialog;
                                });
    Form form;
    Services::Dialog().ShowModal(&form, &ownerState);
    EXPECT_TRUE(form.Success);
    EXPECT_EQ(ownerSeen, &ownerView);
    QObject stranger;
    EXPECT_THROW(Services::Dialog().ShowModal(&stranger, nullptr), Error);

    TreeView near;
    TreeRenderer nearView(&near);
    nearView.show();
    services->Tip().SetTipText(QStringLiteral("Help2Link"), QStringLiteral("Type a namespace."));
    Services::Tip().ShowTip(QStringLiteral("Unknown"), &near);
    EXPECT_EQ(services->Tip().Popup(), nullptr);
    EXPECT_FALSE(Services::Tip().TipSeen(QStringLiteral("Unknown")));
    Services::Tip().ShowTip(QStringLiteral("Help2Link"), &near);
    ASSERT_NE(services->Tip().Popup(), nullptr);
    EXPECT_EQ(services->Tip().Popup()->text(), "Type a namespace.");
    EXPECT_TRUE(Services::Tip().TipSeen(QStringLiteral("Help2Link")));
    Services::Tip().HideTip();
    EXPECT_EQ(services->Tip().Popup(), nullptr);
  }
  EXPECT_EQ(dynamic_cast<QtMessageService*>(&Services::Message()), nullptr);
  EXPECT_FALSE(VisualThemeActive());
}

TEST(QtPickerAndShellTest, FiltersAndTargetsAreWrittenTheQtWay) {
  EXPECT_EQ(QtPickerService::ToQtFilter("Projects|*.svproj|Pages|*.htm;*.html"),
            "Projects (*.svproj);;Pages (*.htm *.html)");
  EXPECT_EQ(QtPickerService::ToQtFilter(""), "");
  EXPECT_EQ(QtShellService::ToUrl("https://example.com/a?b=1").toString(),
            "https://example.com/a?b=1");
  EXPECT_EQ(QtShellService::ToUrl("/tmp/page.html").toString(), "file:///tmp/page.html");
  EXPECT_TRUE(QtShellService::ToUrl("C:/docs/page.html").isLocalFile());
}

}  // namespace
}  // namespace sv

#include "QtServicesTest.moc"
