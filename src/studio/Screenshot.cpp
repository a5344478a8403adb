#include "studio/Screenshot.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPixmap>
#include <QWidget>

namespace sv {

QString Screenshot::Take(QWidget& window, const QString& fileName) {
  window.resize(Width, Height);
  window.show();
  // Layouts, the splitter's position and deferred rebuilds settle over a few turns of the loop.
  for (int turn = 0; turn < 5; ++turn) {
    QApplication::sendPostedEvents();
    QApplication::processEvents();
  }
  const QPixmap picture = window.grab();
  QDir().mkpath(QFileInfo(fileName).absolutePath());
  if (picture.isNull() || !picture.save(fileName, "PNG"))
    return QStringLiteral("Could not write the screenshot %1").arg(fileName);
  return {};
}

}  // namespace sv
