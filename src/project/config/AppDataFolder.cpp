#include "project/config/AppDataFolder.h"

#include <QFileInfo>
#include <QStringList>

#include "foundation/FilePath.h"
#include "model/Error.h"

namespace sv {

namespace {
bool HoldsConfig(const QString& folder) {
  return QFileInfo(folder + QStringLiteral("config")).isDir();
}
}  // namespace

QString NormalFolder(const QString& folder) {
  FilePath path;
  path.setFolder(folder);
  return path.Folder();
}

QString AppDataFolder() {
  const QString fromEnvironment = qEnvironmentVariable("SCRIVARA_DATA_DIR");
  if (!fromEnvironment.isEmpty()) return NormalFolder(fromEnvironment);
  // The running program, without a QCoreApplication to ask.
  const QString program = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
  const QStringList candidates{
      NormalFolder(QFileInfo(program).path() + QStringLiteral("/../share/scrivara")),
      NormalFolder(QStringLiteral(SV_SOURCE_DATA_DIR))};
  for (const QString& candidate : candidates)
    if (HoldsConfig(candidate)) return candidate;
  Raise(ErrorNumber::PathNotFound,
        QStringLiteral("No data folder with a config folder was found; SCRIVARA_DATA_DIR is not "
                       "set and neither %1 nor %2 holds one.")
            .arg(candidates.at(0), candidates.at(1)));
}

}  // namespace sv
