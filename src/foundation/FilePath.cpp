#include "foundation/FilePath.h"

#include "model/Error.h"

#include <QDir>
#include <QFileInfo>

namespace sv {

namespace {

// "~" and "~/..." are the home folder, as a shell would read them.
QString ExpandHome(const QString& path) {
  if (path == u'~') return QDir::homePath();
  if (path.startsWith(QStringLiteral("~/"))) return QDir::homePath() + path.mid(1);
  return path;
}

QString NormalFolder(const QString& folder) {
  const QString clean = QDir::cleanPath(ExpandHome(folder));
  if (clean.isEmpty()) return {};
  return clean.endsWith(u'/') ? clean : clean + u'/';
}

bool IsDotStep(const QString& name) {
  return name == QStringLiteral(".") || name == QStringLiteral("..");
}

}  // namespace

FilePath::FilePath(const QString& fullPath) {
  setFullPath(fullPath);
}

QString FilePath::FullPath() const {
  return mFolder + mFileName;
}

void FilePath::setFullPath(const QString& path) {
  const QString expanded = ExpandHome(path);
  const qsizetype slash = expanded.lastIndexOf(u'/');
  QString name = expanded.mid(slash + 1);
  if (IsDotStep(name)) {
    mFolder = NormalFolder(expanded);
    mFileName.clear();
    return;
  }
  mFolder = slash < 0 ? QString() : NormalFolder(expanded.left(slash + 1));
  mFileName = std::move(name);
}

void FilePath::setFolder(const QString& folder) {
  mFolder = NormalFolder(folder);
}

qsizetype FilePath::ExtensionDot() const {
  const qsizetype dot = mFileName.lastIndexOf(u'.');
  return dot > 0 ? dot : -1;
}

QString FilePath::BaseName() const {
  const qsizetype dot = ExtensionDot();
  return dot < 0 ? mFileName : mFileName.left(dot);
}

QString FilePath::Extension() const {
  const qsizetype dot = ExtensionDot();
  return dot < 0 ? QString() : mFileName.mid(dot + 1);
}

void FilePath::setExtension(const QString& extension) {
  const QString bare = extension.startsWith(u'.') ? extension.mid(1) : extension;
  mFileName = bare.isEmpty() ? BaseName() : BaseName() + u'.' + bare;
}

bool FilePath::FolderExists() const {
  return !mFolder.isEmpty() && QFileInfo(mFolder).isDir();
}

void FilePath::CreateFolder() const {
  if (mFolder.isEmpty() || !QDir().mkpath(mFolder))
    Raise(ErrorNumber::PathNotFound, QStringLiteral("Path not found: %1").arg(mFolder));
}

}  // namespace sv
