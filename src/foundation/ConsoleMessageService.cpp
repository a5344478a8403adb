#include "foundation/ConsoleMessageService.h"

#include "foundation/MessageBox.h"

#include <cstdio>

namespace sv {

int ConsoleMessageService::ShowMessage(const QString& text, int flags, const QString& title) {
  const QString box = QStringLiteral("[%1] %2\n").arg(title, text);
  std::fputs(box.toLocal8Bit().constData(), stderr);
  return Mb::DefaultAnswer(flags);
}

}  // namespace sv
