#include "studio/QtMessageService.h"

#include <QApplication>
#include <QPushButton>

#include "foundation/MessageBox.h"

namespace sv {

namespace {

QMessageBox::Icon iconFor(int flags) {
  switch (flags & Mb::IconMask) {
    case Mb::Critical:
      return QMessageBox::Critical;
    case Mb::Question:
      return QMessageBox::Question;
    case Mb::Exclamation:
      return QMessageBox::Warning;
    case Mb::Information:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

// A box with Cancel closes with Cancel and a lone OK with OK; the others wait for an answer.
int escapeAnswer(int flags) {
  const std::vector<int> buttons = Mb::Buttons(flags);
  for (int answer : buttons)
    if (answer == Mb::IdCancel) return answer;
  return buttons.size() == 1 ? buttons.front() : 0;
}

}  // namespace

QMessageBox::StandardButton QtMessageService::ButtonFor(int answer) {
  switch (answer) {
    case Mb::IdOK:
      return QMessageBox::Ok;
    case Mb::IdCancel:
      return QMessageBox::Cancel;
    case Mb::IdAbort:
      return QMessageBox::Abort;
    case Mb::IdRetry:
      return QMessageBox::Retry;
    case Mb::IdIgnore:
      return QMessageBox::Ignore;
    case Mb::IdYes:
      return QMessageBox::Yes;
    case Mb::IdNo:
      return QMessageBox::No;
    default:
      return QMessageBox::NoButton;
  }
}

int QtMessageService::AnswerFor(QMessageBox::StandardButton button) {
  for (int answer = Mb::IdOK; answer <= Mb::IdNo; ++answer)
    if (ButtonFor(answer) == button) return answer;
  return 0;
}

std::unique_ptr<QMessageBox> QtMessageService::MakeBox(const QString& text, int flags,
                                                       const QString& title, QWidget* parent) {
  auto box = std::make_unique<QMessageBox>(parent);
  box->setWindowTitle(title);
  box->setTextFormat(Qt::PlainText);
  box->setText(text);
  box->setIcon(iconFor(flags));
  box->setWindowModality(Qt::ApplicationModal);
  for (int answer : Mb::Buttons(flags)) box->addButton(ButtonFor(answer));
  box->setDefaultButton(ButtonFor(Mb::DefaultAnswer(flags)));
  if (const int escape = escapeAnswer(flags)) box->setEscapeButton(ButtonFor(escape));
  box->setProperty("svFlags", flags);
  return box;
}

int QtMessageService::AnswerOf(const QMessageBox& box) {
  if (QAbstractButton* clicked = box.clickedButton())
    if (const int answer = AnswerFor(box.standardButton(clicked))) return answer;
  const int flags = box.property("svFlags").toInt();
  const int escape = escapeAnswer(flags);
  return escape != 0 ? escape : Mb::DefaultAnswer(flags);
}

int QtMessageService::ShowMessage(const QString& text, int flags, const QString& title) {
  const std::unique_ptr<QMessageBox> box =
      MakeBox(text, flags, title, QApplication::activeWindow());
  box->exec();
  return AnswerOf(*box);
}

}  // namespace sv
