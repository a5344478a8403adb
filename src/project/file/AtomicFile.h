#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

namespace sv {

// Replaces a file so that a crash at any moment leaves either the old file or the new one:
// the new content goes to a temporary file beside it, is flushed and synced, the old file is
// kept as "<name>.bak", the temporary file is renamed over the old one and the folder is
// synced. A failure raises an error and leaves the old file as it was.
class AtomicFile {
 public:
  enum class Step { Write, Backup, Commit };
  // Answers true to make a step fail, so that tests can check what a failure leaves behind.
  using FaultInjector = std::function<bool(Step)>;

  static void Write(const QString& path, const QByteArray& data, const FaultInjector& fault = {});
  static QString BackupPath(const QString& path) { return path + QStringLiteral(".bak"); }
};

}  // namespace sv
