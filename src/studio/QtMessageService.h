#pragma once

#include <QMessageBox>
#include <memory>

#include "foundation/MessageService.h"

namespace sv {

// Message boxes as QMessageBox: the exact title and text, the buttons and icon the flags name,
// the flags' default button, and the answer numbers of foundation/MessageBox.h.
class QtMessageService : public IMessageService {
 public:
  int ShowMessage(const QString& text, int flags, const QString& title) override;

  // The box the flags ask for, not yet shown.
  static std::unique_ptr<QMessageBox> MakeBox(const QString& text, int flags, const QString& title,
                                              QWidget* parent = nullptr);
  // The answer of the button that closed the box; its escape answer when none was clicked.
  static int AnswerOf(const QMessageBox& box);
  static QMessageBox::StandardButton ButtonFor(int answer);
  // 0 for a button no answer stands for.
  static int AnswerFor(QMessageBox::StandardButton button);
};

}  // namespace sv
