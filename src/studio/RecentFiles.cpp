#include "studio/RecentFiles.h"

#include <QFileInfo>

#include "foundation/modProjectView.h"

namespace sv {

namespace {
const QString kPath = QStringLiteral("RecentFiles");

QString valueName(int index) {
  return QStringLiteral("File%1").arg(index + 1);
}

QString normal(const QString& path) {
  return QFileInfo(path).absoluteFilePath();
}
}  // namespace

QStringList RecentFiles::List() {
  QStringList paths;
  for (int index = 0; index < MaxCount; ++index) {
    const QString path =
        GetAppValue(valueName(index), QString(), Conversion::Text, kPath).toString();
    if (!path.isEmpty() && !paths.contains(path)) paths << path;
  }
  return paths;
}

void RecentFiles::Add(const QString& path) {
  QStringList paths = List();
  paths.removeAll(normal(path));
  paths.prepend(normal(path));
  store(paths);
}

void RecentFiles::Remove(const QString& path) {
  QStringList paths = List();
  paths.removeAll(normal(path));
  store(paths);
}

void RecentFiles::store(const QStringList& paths) {
  // An empty value counts as absent, which is how an entry is taken off the list.
  for (int index = 0; index < MaxCount; ++index)
    SetAppValue(valueName(index), paths.value(index), kPath);
}

}  // namespace sv
