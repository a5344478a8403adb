#include "project/file/AtomicFile.h"

#include <fcntl.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "model/Error.h"

namespace sv {

namespace {

[[noreturn]] void fail(const QString& path, const QString& reason) {
  Raise(ErrorNumber::ApplicationDefined,
        QStringLiteral("The file %1 could not be saved: %2. The previous version is unchanged.")
            .arg(QDir::toNativeSeparators(path), reason));
}

bool injected(const AtomicFile::FaultInjector& fault, AtomicFile::Step step) {
  return fault && fault(step);
}

// Writes data to a temporary file beside path and syncs it; the caller commits or drops it.
void writeSynced(QSaveFile& file, const QByteArray& data, bool failHalfway) {
  if (!file.open(QIODevice::WriteOnly)) fail(file.fileName(), file.errorString());
  const qint64 length = failHalfway ? data.size() / 2 : data.size();
  if (file.write(data.constData(), length) != length || failHalfway) {
    file.cancelWriting();
    fail(file.fileName(), failHalfway ? QStringLiteral("write failed") : file.errorString());
  }
  if (!file.flush() || ::fsync(file.handle()) != 0) {
    file.cancelWriting();
    fail(file.fileName(), QStringLiteral("the data could not be flushed to disk"));
  }
}

void commit(QSaveFile& file, bool failNow) {
  if (failNow) file.cancelWriting();
  if (failNow || !file.commit())
    fail(file.fileName(), failNow ? QStringLiteral("rename failed") : file.errorString());
}

// Copies the current file to its backup, itself replaced atomically.
void backUp(const QString& path, bool failNow) {
  QFile current(path);
  if (!current.exists()) return;
  if (!current.open(QIODevice::ReadOnly)) fail(path, current.errorString());
  QSaveFile backup(AtomicFile::BackupPath(path));
  writeSynced(backup, current.readAll(), false);
  commit(backup, failNow);
}

void syncFolder(const QString& path) {
  const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
  const int fd = ::open(folder.constData(), O_RDONLY | O_DIRECTORY);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

}  // namespace

void AtomicFile::Write(const QString& path, const QByteArray& data, const FaultInjector& fault) {
  QSaveFile file(path);
  writeSynced(file, data, injected(fault, Step::Write));
  // An uncommitted QSaveFile removes its temporary file, so a failed backup leaves no trace.
  backUp(path, injected(fault, Step::Backup));
  commit(file, injected(fault, Step::Commit));
  syncFolder(path);
}

}  // namespace sv
