#include "foundation/modProjectView.h"

#include "foundation/ErrorReport.h"
#include "foundation/ReportObjectRegistry.h"
#include "foundation/SpellingEngine.h"
#include "support/FakeServices.h"
#include "support/TempSettings.h"

#include <gtest/gtest.h>
#include <QStringList>

namespace sv {
namespace {

// Records each option as "Name=value", in the order they were set.
class RecordingSpeller : public ISpellingEngine {
 public:
  void setOptionBtnCaption(const QString& caption) override { Log("OptionBtnCaption", caption); }
  void setSuggest(bool value) override { Log("Suggest", value); }
  void setIgnoreInUpperCase(bool value) override { Log("IgnoreInUpperCase", value); }
  void setIgnoreWithNumbers(bool value) override { Log("IgnoreWithNumbers", value); }
  void setIgnoreInMixedCase(bool value) override { Log("IgnoreInMixedCase", value); }
  void setMainDictFile(const QString& path) override { Log("MainDictFile", path); }
  void setCustomDictFile(const QString& path) override { Log("CustomDictFile", path); }

  QString Text() const { return lines.join(u'\n'); }
  QStringList lines;

 private:
  void Log(const char* name, const QString& value) {
    lines << QString::fromUtf8(name) + u'=' + value;
  }
  void Log(const char* name, bool value) { Log(name, value ? QString("true") : QString("false")); }
};

class ReportCatcher : public IErrorReport {
 public:
  void ErrorHandler(const QString&, const QString&, const QString& module, const QString& procedure,
                    long, long number, const QString& description,
                    const QString& variables) override {
    lines << QStringList{module, procedure, QString::number(number), description}.join(u'|');
    lastVariables = variables;
  }
  QString Action() const override { return QStringLiteral("Continue"); }

  QStringList lines;
  QString lastVariables;
};

class ModProjectViewTest : public testing::Test {
 protected:
  void SetUp() override { setAppName("Scrivara5"); }
  void TearDown() override { setAppName(QString()); }

  test::TempSettings temp;
  SettingsStore store;
};

TEST_F(ModProjectViewTest, KeyPathFollowsTheApplicationName) {
  EXPECT_EQ(RegKeyPath(), "Software\\Corvasys\\Scrivara5");
  setAppName("DocHost");
  EXPECT_EQ(RegKeyPath(), "Software\\Corvasys\\DocHost");
  setAppName(QString());
  EXPECT_EQ(RegKeyPath(), "Software\\Corvasys\\");
  EXPECT_EQ(LibraryKeyPath(), "Software\\Corvasys\\Scrivara5");

  // With no application name the values sit on the vendor key itself.
  SetAppValue("Probe", "x");
  EXPECT_EQ(GetAppValue("Probe", "default").toString(), "x");
  EXPECT_EQ(store.GetValue(Hive::CurrentUser, "Software\\Corvasys", "Probe"), "x");
}

TEST_F(ModProjectViewTest, StoredValuesWinOverDefaultsUnlessEmpty) {
  const QString layout = QStringLiteral("Layout");
  EXPECT_EQ(GetAppValue("ViewSplitterPercentage", 40, Conversion::Number, layout), QVariant(40.0));
  EXPECT_EQ(GetAppValue("Missing", "fallback"), QVariant("fallback"));

  // "0" is a value, not an absence: it overrides a default of 1.
  store.SetValue(Hive::CurrentUser, "Software\\Corvasys\\Scrivara5\\Spelling", "AlwaysSuggest",
                 "0");
  EXPECT_EQ(GetAppValue("AlwaysSuggest", 1, Conversion::Number, "Spelling"), QVariant(0.0));
  EXPECT_EQ(GetAppValue("AlwaysSuggest", 1, Conversion::Text, "Spelling"), QVariant("0"));

  // An empty stored value counts as missing.
  store.SetValue(Hive::CurrentUser, "Software\\Corvasys\\Scrivara5", "Blank", "");
  EXPECT_EQ(GetAppValue("Blank", "fallback"), QVariant("fallback"));
  EXPECT_EQ(GetAppValue("Blank", "", Conversion::Number), QVariant(0.0));

  // Other roots: a named branch of the user hive, and the machine hive.
  store.SetValue(Hive::CurrentUser, "Software\\Corvasys\\Help2LinkDesigner", "LastNamespace",
                 "ms.vs");
  store.SetValue(Hive::LocalMachine, "Software\\Corvasys\\Scrivara5", "Edition", "site");
  EXPECT_EQ(GetAppValue("LastNamespace", "", Conversion::Text, "", Hive::CurrentUser,
                        "Software\\Corvasys\\Help2LinkDesigner"),
            QVariant("ms.vs"));
  EXPECT_EQ(GetAppValue("Edition", "none", Conversion::Text, "", Hive::LocalMachine),
            QVariant("site"));
  EXPECT_EQ(GetAppValue("Edition", "none"), QVariant("none"));
}

TEST_F(ModProjectViewTest, NumberConversionTakesTheLeadingNumber) {
  const QStringList texts{"12px", "abc", " -2.5e1x", "3.", ".5", "7e", "+4", "1 2", "0x1F"};
  QStringList read;
  for (const QString& text : texts) {
    store.SetValue(Hive::CurrentUser, RegKeyPath(), "Size", text);
    const QVariant value = GetAppValue("Size", "", Conversion::Number);
    EXPECT_EQ(value.typeId(), QMetaType::Double);
    read << text + " -> " + QString::number(value.toDouble());
  }
  EXPECT_EQ(read.join(u'\n'),
            "12px -> 12\nabc -> 0\n -2.5e1x -> -25\n3. -> 3\n.5 -> 0.5\n7e -> 7\n+4 -> 4\n"
            "1 2 -> 1\n0x1F -> 0");
  // Any conversion type but 4 answers text.
  EXPECT_EQ(GetAppValue("Size", "", 8).typeId(), QMetaType::QString);
}

TEST_F(ModProjectViewTest, WritesStoreSimpleValuesAsText) {
  SetAppValue("RetainPreview", true);
  SetAppValue("CreateSVPreview", false);
  SetAppValue("ProjectEditorSplitSize", 2400);
  SetAppValue("ViewSplitterPercentage", 37.5, "Layout");
  SetAppValue("Height", 1e6, "Layout\\DescriptionPane");
  SetAppValue("DefaultExampleLanguage", QString("C++"));
  EXPECT_EQ(temp.UserText(),
            "[Software]\n"
            "Corvasys\\Scrivara5\\CreateSVPreview=0\n"
            "Corvasys\\Scrivara5\\DefaultExampleLanguage=C++\n"
            "Corvasys\\Scrivara5\\Layout\\DescriptionPane\\Height=1000000\n"
            "Corvasys\\Scrivara5\\Layout\\ViewSplitterPercentage=37.5\n"
            "Corvasys\\Scrivara5\\ProjectEditorSplitSize=2400\n"
            "Corvasys\\Scrivara5\\RetainPreview=1\n");
  EXPECT_EQ(GetAppValue("RetainPreview", 0, Conversion::Number), QVariant(1.0));
  // A boolean default reads as it would be stored.
  EXPECT_EQ(GetAppValue("NotThere", true), QVariant("1"));
}

TEST_F(ModProjectViewTest, CommonPathEndsInOneSlash) {
  EXPECT_EQ(CommonPath(), "/");
  store.SetValue(Hive::LocalMachine, "Software\\Corvasys", "CommonPath", "/usr/share/scrivara");
  EXPECT_EQ(CommonPath(), "/usr/share/scrivara/");
  store.SetValue(Hive::LocalMachine, "Software\\Corvasys", "CommonPath", "/opt/scrivara/");
  EXPECT_EQ(CommonPath(), "/opt/scrivara/");
  // The user hive plays no part.
  store.SetValue(Hive::CurrentUser, "Software\\Corvasys", "CommonPath", "/home/ann/");
  EXPECT_EQ(CommonPath(), "/opt/scrivara/");
}

TEST_F(ModProjectViewTest, SpellingOptionsComeFromTheSpellingKey) {
  store.SetValue(Hive::LocalMachine, "Software\\Corvasys", "CommonPath", "/usr/share/scrivara");
  RecordingSpeller defaults;
  InitSpellingObject(defaults);
  EXPECT_EQ(defaults.Text(),
            "OptionBtnCaption=&Options...\n"
            "Suggest=true\n"
            "IgnoreInUpperCase=true\n"
            "IgnoreWithNumbers=true\n"
            "IgnoreInMixedCase=false\n"
            "MainDictFile=/usr/share/scrivara/Corvasys.dct\n"
            "CustomDictFile=/usr/share/scrivara/Custom.dct");

  const QString spelling = RegKeyPath() + "\\Spelling";
  store.SetValue(Hive::CurrentUser, spelling, "AlwaysSuggest", "0");
  store.SetValue(Hive::CurrentUser, spelling, "IgnoreNumbers", "0");
  store.SetValue(Hive::CurrentUser, spelling, "IgnoreMixedCase", "1");
  store.SetValue(Hive::CurrentUser, spelling, "CustomDictionary", "/home/ann/words.dct");
  RecordingSpeller chosen;
  InitSpellingObject(chosen);
  EXPECT_EQ(chosen.Text(),
            "OptionBtnCaption=&Options...\n"
            "Suggest=false\n"
            "IgnoreInUpperCase=true\n"
            "IgnoreWithNumbers=false\n"
            "IgnoreInMixedCase=true\n"
            "MainDictFile=/usr/share/scrivara/Corvasys.dct\n"
            "CustomDictFile=/home/ann/words.dct");
}

TEST_F(ModProjectViewTest, StoreFailuresGoToTheErrorTrap) {
  auto report = std::make_shared<ReportCatcher>();
  ReportObjectRegistry::Register(ErrorReportClass, [report] { return report; });
  test::FakeServices services;
  setLastPath("/home/ann/docs");
  test::TempSettings::Write(temp.Root() + "/plain-file", "not a folder");
  temp.Set("SCRIVARA_USER_SETTINGS_DIR", temp.Root() + "/plain-file/user");

  SetAppValue("RetainPreview", true);
  EXPECT_EQ(GetAppValue("RetainPreview", 0, Conversion::Number), QVariant(0.0));
  ReportObjectRegistry::Unregister(ErrorReportClass);
  setLastPath(QString());

  EXPECT_EQ(report->lines.join(u'\n'), "modProjectView|SetAppValue|70|Permission denied: " +
                                           temp.Root() + "/plain-file/user/scrivara.ini");
  QString variables = report->lastVariables;
  variables.replace("\r\n", "\n");
  EXPECT_TRUE(
      variables.contains("<mAppName>Scrivara5</mAppName>\n"
                         "<LastPath>/home/ann/docs</LastPath>\n"
                         "</GlobalVariables>"))
      << variables.toStdString();
  EXPECT_EQ(services.message->Count(), 0);
}

}  // namespace
}  // namespace sv
