#include "studio/QtCursorService.h"

#include <QCursor>
#include <QGuiApplication>

namespace sv {

QtCursorService::~QtCursorService() {
  SetWaitCursor(false);
}

void QtCursorService::SetWaitCursor(bool on) {
  if (on == mWait) return;
  mWait = on;
  if (on)
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
  else
    QGuiApplication::restoreOverrideCursor();
}

}  // namespace sv
