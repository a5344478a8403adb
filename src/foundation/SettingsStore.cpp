#include "foundation/SettingsStore.h"

#include "model/Error.h"

#include <QDir>
#include <QSettings>
#include <QStringList>

namespace sv {

namespace {

QString SettingsFileName() {
  return QStringLiteral("scrivara.ini");
}

// An XDG variable counts only when it holds an absolute path.
QString AbsoluteOrEmpty(const QString& path) {
  return QDir::isAbsolutePath(path) ? path : QString();
}

QString XdgUserFolder() {
  const QString configHome = AbsoluteOrEmpty(qEnvironmentVariable("XDG_CONFIG_HOME"));
  const QString base =
      configHome.isEmpty() ? QDir::homePath() + QStringLiteral("/.config") : configHome;
  return base + QStringLiteral("/scrivara");
}

QString XdgMachineFolder() {
  const QStringList dirs = qEnvironmentVariable("XDG_CONFIG_DIRS").split(u':', Qt::SkipEmptyParts);
  const QString first = dirs.isEmpty() ? QString() : AbsoluteOrEmpty(dirs.first());
  return (first.isEmpty() ? QStringLiteral("/etc/xdg") : first) + QStringLiteral("/scrivara");
}

// Empty parts are dropped, so leading, trailing and doubled backslashes do no harm.
QStringList KeySegments(const QString& keyPath) {
  return keyPath.split(u'\\', Qt::SkipEmptyParts);
}

QString MatchIgnoringCase(const QStringList& names, const QString& wanted) {
  for (const QString& name : names)
    if (name.compare(wanted, Qt::CaseInsensitive) == 0) return name;
  return {};
}

// Enters the groups of a key, spelt as the file spells them; segments the file lacks keep the
// spelling given. Answers whether the whole key was found.
bool EnterKey(QSettings& settings, const QString& keyPath) {
  bool found = true;
  for (const QString& segment : KeySegments(keyPath)) {
    const QString existing = found ? MatchIgnoringCase(settings.childGroups(), segment) : QString();
    found = !existing.isEmpty();
    settings.beginGroup(found ? existing : segment);
  }
  return found;
}

// The name of a value as the current group spells it; the name given when there is none.
QString SpeltName(const QSettings& settings, const QString& name) {
  const QString existing = MatchIgnoringCase(settings.childKeys(), name);
  return existing.isEmpty() ? name : existing;
}

void CheckStatus(const QSettings& settings) {
  if (settings.status() == QSettings::FormatError)
    Raise(ErrorNumber::BadFileFormat,
          QStringLiteral("Bad file format: %1").arg(settings.fileName()));
  if (settings.status() == QSettings::AccessError)
    Raise(ErrorNumber::PermissionDenied,
          QStringLiteral("Permission denied: %1").arg(settings.fileName()));
}

// Writes and checks that the file took it.
void Commit(QSettings& settings) {
  settings.sync();
  CheckStatus(settings);
}

}  // namespace

SettingsStore::SettingsStore()
    : SettingsStore(DefaultFolder(Hive::CurrentUser), DefaultFolder(Hive::LocalMachine)) {}

SettingsStore::SettingsStore(QString userFolder, QString machineFolder)
    : mUserFolder(std::move(userFolder)), mMachineFolder(std::move(machineFolder)) {}

QString SettingsStore::DefaultFolder(Hive hive) {
  const char* variable =
      hive == Hive::CurrentUser ? "SCRIVARA_USER_SETTINGS_DIR" : "SCRIVARA_MACHINE_SETTINGS_DIR";
  const QString overridden = qEnvironmentVariable(variable);
  if (!overridden.isEmpty()) return overridden;
  return hive == Hive::CurrentUser ? XdgUserFolder() : XdgMachineFolder();
}

QString SettingsStore::FileName(Hive hive) const {
  const QString& folder = hive == Hive::CurrentUser ? mUserFolder : mMachineFolder;
  return QDir(folder).filePath(SettingsFileName());
}

std::optional<QString> SettingsStore::GetValue(Hive hive, const QString& keyPath,
                                               const QString& name) const {
  QSettings settings(FileName(hive), QSettings::IniFormat);
  CheckStatus(settings);
  if (!EnterKey(settings, keyPath)) return std::nullopt;
  const QVariant value = settings.value(SpeltName(settings, name));
  if (!value.isValid()) return std::nullopt;
  // A hand-written value with bare commas comes back as a list: put the commas back.
  if (value.typeId() == QMetaType::QStringList) return value.toStringList().join(u',');
  return value.toString();
}

void SettingsStore::SetValue(Hive hive, const QString& keyPath, const QString& name,
                             const QString& value) {
  QSettings settings(FileName(hive), QSettings::IniFormat);
  CheckStatus(settings);
  EnterKey(settings, keyPath);
  settings.setValue(SpeltName(settings, name), value);
  Commit(settings);
}

bool SettingsStore::DeleteValue(Hive hive, const QString& keyPath, const QString& name) {
  QSettings settings(FileName(hive), QSettings::IniFormat);
  CheckStatus(settings);
  if (!EnterKey(settings, keyPath)) return false;
  const QString existing = MatchIgnoringCase(settings.childKeys(), name);
  if (existing.isEmpty()) return false;
  settings.remove(existing);
  Commit(settings);
  return true;
}

bool SettingsStore::KeyExists(Hive hive, const QString& keyPath) const {
  QSettings settings(FileName(hive), QSettings::IniFormat);
  CheckStatus(settings);
  return EnterKey(settings, keyPath);
}

}  // namespace sv
