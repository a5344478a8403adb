#include "studio/QtShellService.h"

#include <QDesktopServices>
#include <QFileInfo>

namespace sv {

QUrl QtShellService::ToUrl(const QString& urlOrFile) {
  const QUrl url(urlOrFile);
  if (url.isValid() && url.scheme().size() > 1) return url;
  return QUrl::fromLocalFile(QFileInfo(urlOrFile).absoluteFilePath());
}

bool QtShellService::Open(const QString& urlOrFile) {
  if (urlOrFile.isEmpty()) return false;
  return QDesktopServices::openUrl(ToUrl(urlOrFile));
}

}  // namespace sv
