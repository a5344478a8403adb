#include "project/model/ProjectSettings.h"

#include <array>

namespace sv {

namespace {

using enum SettingType;

const std::array<SettingDef, kSettingCount>& table() {
  static const std::array<SettingDef, kSettingCount> settings{{
      {Setting::RemoveAfterCompile, "RemoveAfterCompile", Bool, false},
      {Setting::ClearBeforeBuild, "ClearBeforeBuild", Bool, true},
      {Setting::StripMetaData, "StripMetaData", Bool, false},
      {Setting::Locale, "Locale", Long, 1033},
      {Setting::H2PlugInNamespace, "H2PlugInNamespace", String, QString()},
      {Setting::H2PlugIn, "H2PlugIn", Bool, false},
      {Setting::ProjectGroupName, "ProjectGroupName", String, QString()},
      {Setting::HHIdentifier, "HHIdentifier", String, QString()},
      {Setting::HHNamespace, "HHNamespace", String, QString()},
      {Setting::ExtractUntaggedUDTs, "ExtractUntaggedUDTs", Bool, false},
      {Setting::ExtractUntaggedEnumerations, "ExtractUntaggedEnumerations", Bool, false},
      {Setting::ExtractUntaggedEvents, "ExtractUntaggedEvents", Bool, false},
      {Setting::ExtractUntaggedBlocks, "ExtractUntaggedBlocks", Bool, false},
      {Setting::ExtractUntaggedVariables, "ExtractUntaggedVariables", Bool, false},
      {Setting::ExtractUntaggedModules, "ExtractUntaggedModules", Bool, false},
      {Setting::IdentifyVisibility, "IdentifyVisibility", Bool, true},
      {Setting::ShowProtectedMembers, "ShowProtectedMembers", Bool, false},
      {Setting::ShowFriendMembers, "ShowFriendMembers", Bool, false},
      {Setting::ShowPrivateMembers, "ShowPrivateMembers", Bool, false},
      {Setting::DefRelForCollections, "DefRelForCollections", Bool, true},
      {Setting::HelpDescriptionImport, "HelpDescriptionImport", Long, 0},
      {Setting::RelationshipsFrom, "RelationshipsFrom", Long, 0},
      {Setting::PropertyCommentsFrom, "PropertyCommentsFrom", Long, 0},
      {Setting::AlwaysCopySupportFiles, "AlwaysCopySupportFiles", Bool, false},
      {Setting::RefreshIfExists, "RefreshIfExists", Bool, true},
      {Setting::DocumentSourceCode, "DocumentSourceCode", Bool, false},
      {Setting::CHMFileName, "CHMFileName", String, QString()},
      {Setting::SupressSingleObjectDiagrams, "SupressSingleObjectDiagrams", Bool, true},
      {Setting::PageNestingLevels, "PageNestingLevels", Long, 2},
      {Setting::OverviewNestingLevels, "OverviewNestingLevels", Long, 1},
      {Setting::UseALinkMenus, "UseALinkMenus", Bool, true},
      {Setting::CreateWinhelpStub, "CreateWinhelpStub", Bool, false},
      {Setting::CompileHelpFile, "CompileHelpFile", Bool, true},
      {Setting::CopySourceCode, "CopySourceCode", Bool, false},
      {Setting::WriteHelpDescriptions, "WriteHelpDescriptions", Bool, false},
      {Setting::CreateContextLinks, "CreateContextLinks", Bool, true},
      {Setting::OutputFolder, "OutputFolder", String, QString()},
      {Setting::HTMLHelpVersion, "HTMLHelpVersion", String, QStringLiteral("1.4")},
      {Setting::ExcludeFiltersRegExp, "ExcludeFiltersRegExp", Bool, false},
      {Setting::OutputLanguage, "OutputLanguage", String, QStringLiteral("English")},
      {Setting::CommunityProjectKey, "CommunityProjectKey", String, QString()},
  }};
  return settings;
}

std::optional<bool> toBool(const QString& text) {
  const QString folded = text.trimmed().toLower();
  if (folded == QLatin1String("true") || folded == QLatin1String("1")) return true;
  if (folded == QLatin1String("false") || folded == QLatin1String("0")) return false;
  return std::nullopt;
}

}  // namespace

std::span<const SettingDef> SettingTable() {
  return table();
}

const SettingDef& SettingDefOf(Setting id) {
  return table()[static_cast<std::size_t>(id)];
}

std::optional<Setting> SettingByName(const QString& name) {
  for (const SettingDef& def : table())
    if (name.compare(QLatin1String(def.name), Qt::CaseInsensitive) == 0) return def.id;
  return std::nullopt;
}

std::optional<QVariant> ConvertSetting(Setting id, const QVariant& value) {
  switch (SettingDefOf(id).type) {
    case SettingType::Bool: {
      if (value.typeId() == QMetaType::Bool) return value;
      const auto flag = toBool(value.toString());
      if (!flag) return std::nullopt;
      return QVariant(*flag);
    }
    case SettingType::Long: {
      bool ok = false;
      const int number = value.toString().trimmed().toInt(&ok);
      if (!ok) return std::nullopt;
      return QVariant(number);
    }
    case SettingType::String:
      return QVariant(value.toString());
  }
  return std::nullopt;
}

QString SettingText(Setting id, const QVariant& value) {
  if (SettingDefOf(id).type == SettingType::Bool)
    return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
  return value.toString();
}

}  // namespace sv
