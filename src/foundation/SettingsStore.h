#pragma once

#include <QString>
#include <optional>

class QSettings;

namespace sv {

// The two branches of the settings store: the user's own and the machine-wide one.
enum class Hive { CurrentUser, LocalMachine };

// Keyed string settings in two hives, each one INI file. Keys are backslash paths
// ("Software\Corvasys\Scrivara5\Spelling"), compared without regard to case as the classic store
// does; a new key or value keeps the spelling it was first written with. Every call reads the file
// afresh (QSettings re-reads it only when it changed), and every write is on disk on return.
//
// Files: <user folder>/scrivara.ini and <machine folder>/scrivara.ini, where the user folder is
// $SCRIVARA_USER_SETTINGS_DIR, else $XDG_CONFIG_HOME/scrivara, else ~/.config/scrivara, and the
// machine folder is $SCRIVARA_MACHINE_SETTINGS_DIR, else the first entry of $XDG_CONFIG_DIRS
// followed by /scrivara, else /etc/xdg/scrivara.
class SettingsStore {
 public:
  // A store over the folders the environment names at this moment.
  SettingsStore();
  SettingsStore(QString userFolder, QString machineFolder);

  static QString DefaultFolder(Hive hive);
  QString FileName(Hive hive) const;

  // The value, or nothing when the key or the value is missing.
  std::optional<QString> GetValue(Hive hive, const QString& keyPath, const QString& name) const;
  // Creates the key as needed. Raises when the file cannot be written.
  void SetValue(Hive hive, const QString& keyPath, const QString& name, const QString& value);
  // Answers whether there was a value to delete.
  bool DeleteValue(Hive hive, const QString& keyPath, const QString& name);
  // A key exists while it holds a value or a subkey: the file keeps no empty keys.
  bool KeyExists(Hive hive, const QString& keyPath) const;

 private:
  QString mUserFolder;
  QString mMachineFolder;
};

}  // namespace sv
