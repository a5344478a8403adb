#pragma once

#include <QString>
#include <QVariant>
#include <cstddef>
#include <optional>
#include <span>

namespace sv {

// The scalar settings of a project. The project stores their values in one array indexed by
// this enum, and the project file walks SettingTable() instead of naming each setting, so a
// new setting is one enum value and one table row.
enum class Setting : int {
  RemoveAfterCompile,
  ClearBeforeBuild,
  StripMetaData,
  Locale,
  H2PlugInNamespace,
  H2PlugIn,
  ProjectGroupName,
  HHIdentifier,
  HHNamespace,
  ExtractUntaggedUDTs,
  ExtractUntaggedEnumerations,
  ExtractUntaggedEvents,
  ExtractUntaggedBlocks,
  ExtractUntaggedVariables,
  ExtractUntaggedModules,
  IdentifyVisibility,
  ShowProtectedMembers,
  ShowFriendMembers,
  ShowPrivateMembers,
  DefRelForCollections,
  HelpDescriptionImport,
  RelationshipsFrom,
  PropertyCommentsFrom,
  AlwaysCopySupportFiles,
  RefreshIfExists,
  DocumentSourceCode,
  CHMFileName,
  SupressSingleObjectDiagrams,
  PageNestingLevels,
  OverviewNestingLevels,
  UseALinkMenus,
  CreateWinhelpStub,
  CompileHelpFile,
  CopySourceCode,
  WriteHelpDescriptions,
  CreateContextLinks,
  OutputFolder,
  HTMLHelpVersion,
  ExcludeFiltersRegExp,
  OutputLanguage,
  CommunityProjectKey,
  Count
};

inline constexpr std::size_t kSettingCount = static_cast<std::size_t>(Setting::Count);

enum class SettingType { Bool, Long, String };

struct SettingDef {
  Setting id;
  const char* name;  // the member's name, also the name in the project file
  SettingType type;
  QVariant defaultValue;
};

// Every setting in enum order.
std::span<const SettingDef> SettingTable();
const SettingDef& SettingDefOf(Setting id);
// The setting of a name, compared without regard to case; nullopt for an unknown name.
std::optional<Setting> SettingByName(const QString& name);

// A value converted to the setting's type; nullopt when the text or value does not convert
// ("yes" for a number). Booleans accept true/false and 1/0.
std::optional<QVariant> ConvertSetting(Setting id, const QVariant& value);
// The value as the project file writes it: "true"/"false", decimal, or the text itself.
QString SettingText(Setting id, const QVariant& value);

}  // namespace sv
