#include "foundation/SettingsStore.h"

#include "model/Error.h"
#include "support/TempSettings.h"

#include <gtest/gtest.h>
#include <QDir>

namespace sv {
namespace {

QString Show(const std::optional<QString>& value) {
  return value ? *value : QStringLiteral("<missing>");
}

TEST(SettingsStoreTest, ValuesLiveInTheirOwnHive) {
  test::TempSettings temp;
  SettingsStore store;
  const QString key = QStringLiteral("Software\\Corvasys\\Scrivara5\\Spelling");

  EXPECT_EQ(Show(store.GetValue(Hive::CurrentUser, key, "AlwaysSuggest")), "<missing>");
  EXPECT_FALSE(store.KeyExists(Hive::CurrentUser, key));

  store.SetValue(Hive::CurrentUser, key, "AlwaysSuggest", "0");
  store.SetValue(Hive::LocalMachine, "Software\\Corvasys", "CommonPath", "/usr/share/scrivara/");
  EXPECT_EQ(Show(store.GetValue(Hive::CurrentUser, key, "AlwaysSuggest")), "0");
  EXPECT_EQ(Show(store.GetValue(Hive::LocalMachine, key, "AlwaysSuggest")), "<missing>");
  EXPECT_EQ(Show(store.GetValue(Hive::CurrentUser, "Software\\Corvasys", "CommonPath")),
            "<missing>");
  EXPECT_TRUE(store.KeyExists(Hive::CurrentUser, "Software\\Corvasys"));
  EXPECT_FALSE(store.KeyExists(Hive::LocalMachine, key));

  EXPECT_EQ(temp.UserText(),
            "[Software]\n"
            "Corvasys\\Scrivara5\\Spelling\\AlwaysSuggest=0\n");
  EXPECT_EQ(temp.MachineText(),
            "[Software]\n"
            "Corvasys\\CommonPath=/usr/share/scrivara/\n");

  // A key without values is gone with its last value.
  EXPECT_TRUE(store.DeleteValue(Hive::CurrentUser, key, "AlwaysSuggest"));
  EXPECT_FALSE(store.DeleteValue(Hive::CurrentUser, key, "AlwaysSuggest"));
  EXPECT_FALSE(store.DeleteValue(Hive::CurrentUser, "Software\\Nowhere", "AlwaysSuggest"));
  EXPECT_EQ(Show(store.GetValue(Hive::CurrentUser, key, "AlwaysSuggest")), "<missing>");
  EXPECT_FALSE(store.KeyExists(Hive::CurrentUser, key));
}

TEST(SettingsStoreTest, KeyPathsForgiveStrayBackslashesAndCase) {
  test::TempSettings temp;
  SettingsStore store;
  store.SetValue(Hive::CurrentUser, "Software\\Corvasys\\", "LastURL", "https://one");
  store.SetValue(Hive::CurrentUser, "\\software\\\\CORVASYS", "lasturl", "https://two");
  store.SetValue(Hive::CurrentUser, "Software\\Corvasys\\Help2LinkDesigner\\", "NoNamespace", "1");

  EXPECT_EQ(Show(store.GetValue(Hive::CurrentUser, "SOFTWARE\\corvasys", "LASTURL")),
            "https://two");
  EXPECT_EQ(Show(store.GetValue(Hive::CurrentUser, "software\\corvasys\\help2linkdesigner\\\\",
                                "nonamespace")),
            "1");
  EXPECT_TRUE(store.KeyExists(Hive::CurrentUser, "SOFTWARE\\CORVASYS\\HELP2LINKDESIGNER\\"));
  // The spelling first written is kept; a later write in other case updates the same entry.
  EXPECT_EQ(temp.UserText(),
            "[Software]\n"
            "Corvasys\\Help2LinkDesigner\\NoNamespace=1\n"
            "Corvasys\\LastURL=https://two\n");
}

TEST(SettingsStoreTest, HandWrittenFilesReadAsTheyLook) {
  test::TempSettings temp;
  test::TempSettings::Write(temp.UserFolder() + "/scrivara.ini",
                            "[Software]\n"
                            "Corvasys\\Scrivara5\\ModelCommentGridLayout=Name~1~120,Tag~2~80\n"
                            "Corvasys\\Scrivara5\\Quoted=\"a, b\"\n"
                            "Corvasys\\Scrivara5\\Empty=\n");
  SettingsStore store;
  const QString key = QStringLiteral("Software\\Corvasys\\Scrivara5");
  EXPECT_EQ(Show(store.GetValue(Hive::CurrentUser, key, "ModelCommentGridLayout")),
            "Name~1~120,Tag~2~80");
  EXPECT_EQ(Show(store.GetValue(Hive::CurrentUser, key, "Quoted")), "a, b");
  EXPECT_EQ(Show(store.GetValue(Hive::CurrentUser, key, "Empty")), "");

  // Values the INI syntax gives a meaning of its own survive a round trip.
  for (const QString value : {"@Invalid()", "x=y; z", "\"quoted\"", "tab\there", "Ünïcödé"}) {
    store.SetValue(Hive::CurrentUser, key, "Odd", value);
    EXPECT_EQ(Show(store.GetValue(Hive::CurrentUser, key, "Odd")), value);
  }
}

TEST(SettingsStoreTest, FoldersFollowTheEnvironment) {
  test::TempSettings temp;
  EXPECT_EQ(SettingsStore().FileName(Hive::CurrentUser), temp.UserFolder() + "/scrivara.ini");
  EXPECT_EQ(SettingsStore().FileName(Hive::LocalMachine), temp.MachineFolder() + "/scrivara.ini");

  temp.Set("SCRIVARA_USER_SETTINGS_DIR", QString());
  temp.Set("SCRIVARA_MACHINE_SETTINGS_DIR", QString());
  temp.Set("XDG_CONFIG_HOME", "/srv/ann/config");
  temp.Set("XDG_CONFIG_DIRS", "/opt/site/xdg:/etc/xdg");
  EXPECT_EQ(SettingsStore::DefaultFolder(Hive::CurrentUser), "/srv/ann/config/scrivara");
  EXPECT_EQ(SettingsStore::DefaultFolder(Hive::LocalMachine), "/opt/site/xdg/scrivara");

  // Relative or empty XDG folders do not count.
  temp.Set("XDG_CONFIG_HOME", "config");
  temp.Set("XDG_CONFIG_DIRS", QString());
  EXPECT_EQ(SettingsStore::DefaultFolder(Hive::CurrentUser),
            QDir::homePath() + "/.config/scrivara");
  EXPECT_EQ(SettingsStore::DefaultFolder(Hive::LocalMachine), "/etc/xdg/scrivara");

  const SettingsStore explicitStore("/a", "/b");
  EXPECT_EQ(explicitStore.FileName(Hive::CurrentUser), "/a/scrivara.ini");
  EXPECT_EQ(explicitStore.FileName(Hive::LocalMachine), "/b/scrivara.ini");
}

TEST(SettingsStoreTest, AFileThatCannotBeWrittenIsAnError) {
  test::TempSettings temp;
  test::TempSettings::Write(temp.Root() + "/plain-file", "not a folder");
  SettingsStore store(temp.UserFolder(), temp.Root() + "/plain-file/machine");
  try {
    store.SetValue(Hive::LocalMachine, "Software\\Corvasys", "CommonPath", "/usr/share/");
    FAIL() << "the write did not raise";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), 70);
    EXPECT_EQ(error.Description(),
              "Permission denied: " + temp.Root() + "/plain-file/machine/scrivara.ini");
  }
  EXPECT_EQ(Show(store.GetValue(Hive::LocalMachine, "Software\\Corvasys", "CommonPath")),
            "<missing>");
}

}  // namespace
}  // namespace sv
