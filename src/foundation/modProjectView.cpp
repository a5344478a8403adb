#include "foundation/modProjectView.h"

#include "foundation/ErrorTrap.h"
#include "foundation/NamedModule.h"
#include "foundation/NumericValue.h"
#include "foundation/SpellingEngine.h"

namespace sv {

namespace {

struct ModuleState {
  QString appName;
  QString lastPath;
};

ModuleState& State() {
  static ModuleState state;
  return state;
}

const NamedModule& Module() {
  static const NamedModule module(QStringLiteral("modProjectView"));
  return module;
}

void RegisterGlobals() {
  SetGlobalVariablesProvider([] {
    return std::vector<DumpArg>{{QStringLiteral("mAppName"), State().appName},
                                {QStringLiteral("LastPath"), State().lastPath}};
  });
}

// A simple value as the store keeps it. True is 1, not the -1 of its integer form.
QString StoredText(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Bool:
      return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::Double:
    case QMetaType::Float:
      return QString::number(value.toDouble(), 'g', 15);
    default:
      return value.toString();
  }
}

QString JoinKey(const QString& keyPath, const QString& extraPath) {
  return extraPath.isEmpty() ? keyPath : keyPath + u'\\' + extraPath;
}

bool SpellingSwitch(const QString& name, int defaultValue) {
  return GetAppValue(name, defaultValue, Conversion::Number, QStringLiteral("Spelling"))
             .toDouble() != 0;
}

QString SpellingFile(const QString& name, const QString& defaultValue) {
  return GetAppValue(name, defaultValue, Conversion::Text, QStringLiteral("Spelling")).toString();
}

}  // namespace

QString AppName() {
  return State().appName;
}

void setAppName(const QString& name) {
  State().appName = name;
  RegisterGlobals();
}

QString LastPath() {
  return State().lastPath;
}

void setLastPath(const QString& path) {
  State().lastPath = path;
  RegisterGlobals();
}

QString LibraryKeyPath() {
  return QStringLiteral("Software\\Corvasys\\Scrivara5");
}

QString RegKeyPath() {
  return QStringLiteral("Software\\Corvasys\\") + AppName();
}

QVariant GetAppValue(const QString& keyName, const QVariant& defaultValue, int conversionType,
                     const QString& extraPath, Hive root, const QString& rootPath) {
  return Trap(
      &Module(), "GetAppValue",
      [&] {
        const QString keyPath = JoinKey(rootPath.isEmpty() ? RegKeyPath() : rootPath, extraPath);
        SV_TRAP_LOCAL(keyPath);
        const QString stored = SettingsStore().GetValue(root, keyPath, keyName).value_or(QString());
        const QString text = stored.isEmpty() ? StoredText(defaultValue) : stored;
        if (conversionType == Conversion::Number) return QVariant(NumericValue(text));
        return QVariant(text);
      },
      {{QStringLiteral("KeyName"), keyName},
       {QStringLiteral("DefaultValue"), StoredText(defaultValue)},
       {QStringLiteral("ConversionType"), conversionType},
       {QStringLiteral("ExtraPath"), extraPath},
       {QStringLiteral("Root"), static_cast<int>(root)},
       {QStringLiteral("RootPath"), rootPath}});
}

void SetAppValue(const QString& keyName, const QVariant& value, const QString& extraPath) {
  Trap(&Module(), "SetAppValue",
       [&] {
         SettingsStore().SetValue(Hive::CurrentUser, JoinKey(RegKeyPath(), extraPath), keyName,
                                  StoredText(value));
       },
       {{QStringLiteral("KeyName"), keyName},
        {QStringLiteral("Value"), StoredText(value)},
        {QStringLiteral("ExtraPath"), extraPath}});
}

QString CommonPath() {
  return Trap(&Module(), "CommonPath", [] {
    QString path = SettingsStore()
                       .GetValue(Hive::LocalMachine, QStringLiteral("Software\\Corvasys"),
                                 QStringLiteral("CommonPath"))
                       .value_or(QString());
    if (!path.endsWith(u'/')) path += u'/';
    return path;
  });
}

void InitSpellingObject(ISpellingEngine& spellCtl) {
  Trap(&Module(), "InitSpellingObject", [&] {
    spellCtl.setOptionBtnCaption(QStringLiteral("&Options..."));
    spellCtl.setSuggest(SpellingSwitch(QStringLiteral("AlwaysSuggest"), 1));
    spellCtl.setIgnoreInUpperCase(SpellingSwitch(QStringLiteral("IgnoreUppercase"), 1));
    spellCtl.setIgnoreWithNumbers(SpellingSwitch(QStringLiteral("IgnoreNumbers"), 1));
    spellCtl.setIgnoreInMixedCase(SpellingSwitch(QStringLiteral("IgnoreMixedCase"), 0));
    spellCtl.setMainDictFile(SpellingFile(QStringLiteral("PrimaryDictionary"),
                                          CommonPath() + QStringLiteral("Corvasys.dct")));
    spellCtl.setCustomDictFile(SpellingFile(QStringLiteral("CustomDictionary"),
                                            CommonPath() + QStringLiteral("Custom.dct")));
  });
}

}  // namespace sv
