#pragma once

#include <QString>
#include <QStringList>

namespace sv {

// The projects and folders opened last, newest first, kept in the user's settings under the
// application branch ("<app>\RecentFiles", values File1 to File8).
class RecentFiles {
 public:
  static constexpr int MaxCount = 8;

  static QStringList List();
  // Puts a path first, dropping an older entry of it and the oldest beyond MaxCount.
  static void Add(const QString& path);
  static void Remove(const QString& path);

 private:
  static void store(const QStringList& paths);
};

}  // namespace sv
