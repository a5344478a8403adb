#pragma once

#include <QString>
#include <memory>

#include "model/AdditionalFiles.h"
#include "model/CommentFile.h"
#include "model/CommentOptions.h"
#include "model/CommunityConnection.h"
#include "model/DiagramStyle.h"
#include "model/ExcludeFilter.h"
#include "model/IgnoreRelationship.h"
#include "model/ModelTypes.h"

namespace sv {

class DocTypes;
class NamespaceProvider;
class ProjectVariables;

// One open documentation project. The host creates it and hands it to the components; none of
// them releases or replaces it.
class SVProject {
 public:
  virtual ~SVProject() = default;

  virtual void setScanning(bool value) = 0;
  virtual std::shared_ptr<sv::DocTypes> DocTypes() const = 0;
  virtual std::shared_ptr<sv::ExcludeFilters> ExcludeFilters() const = 0;
  virtual std::shared_ptr<ProjectVariables> Variables() const = 0;
  virtual std::shared_ptr<sv::AdditionalFiles> AdditionalFiles() const = 0;
  virtual void setAdditionalFiles(std::shared_ptr<sv::AdditionalFiles> files) = 0;
  virtual std::shared_ptr<ElementNamespaceMap> ElementNamespaces() const = 0;
  virtual void setElementNamespaces(std::shared_ptr<ElementNamespaceMap> map) = 0;
  virtual std::shared_ptr<sv::CommentFiles> CommentFiles() const = 0;
  virtual std::shared_ptr<sv::IgnoreRelationships> IgnoreRelationships() const = 0;
  virtual std::shared_ptr<sv::DiagramStyle> DiagramStyle() const = 0;
  virtual std::shared_ptr<FilePath> ProjectFile() const = 0;
  virtual std::shared_ptr<StringCollection> ModelCommentProfiles() const = 0;
  virtual void setModelCommentProfiles(std::shared_ptr<StringCollection> profiles) = 0;
  // Excluded items: key and value are the item's qualified name.
  virtual std::shared_ptr<StringCollection> NamespaceExclusions() const = 0;
  virtual std::shared_ptr<sv::CommentOptions> CommentOptions() const = 0;
  // A message box through the project; answers the button pressed.
  virtual int ShowMessage(const QString& text, int flags, const QString& title) = 0;
  virtual void setShowProtectedFriendMembers(bool value) = 0;
  virtual bool ShowProtectedMembers() const = 0;
  virtual void setShowProtectedMembers(bool value) = 0;
  virtual bool ShowFriendMembers() const = 0;
  virtual void setShowFriendMembers(bool value) = 0;
  virtual bool ShowPrivateMembers() const = 0;
  virtual void setShowPrivateMembers(bool value) = 0;
  virtual bool Dirty() const = 0;
  virtual void setDirty(bool value) = 0;
  virtual void UpdateDefaultsFromComponents() = 0;
  virtual int SourceProjectCount() const = 0;
  virtual int CompiledComponentCount() const = 0;
  virtual int VBProjectCount() const = 0;
  virtual QString OutputLanguage() const = 0;
  virtual void setOutputLanguage(const QString& value) = 0;
  // Records the default of a template variable the project has no value for, and answers the
  // default in force.
  virtual QString VariableDefaultValue(const QString& name, const QString& defaultValue) = 0;
  // The provider of a name; null when the project has none of that name.
  virtual std::shared_ptr<NamespaceProvider> GetNamespaceProvider(const QString& name) = 0;
  // The path the generator is to use for a file.
  virtual QString GetProjectFilePath(const FilePath& file) const = 0;
  virtual std::shared_ptr<ItemCollection> NETProjects() const = 0;
  virtual std::shared_ptr<sv::CommunityConnection> CommunityConnection() const = 0;
  virtual QString CommunityProjectKey() const = 0;
  virtual void setCommunityProjectKey(const QString& value) = 0;

  // Settings.
  virtual bool RemoveAfterCompile() const = 0;
  virtual void setRemoveAfterCompile(bool value) = 0;
  virtual bool ClearBeforeBuild() const = 0;
  virtual void setClearBeforeBuild(bool value) = 0;
  virtual bool StripMetaData() const = 0;
  virtual void setStripMetaData(bool value) = 0;
  virtual long Locale() const = 0;
  virtual void setLocale(long value) = 0;
  virtual QString H2PlugInNamespace() const = 0;
  virtual void setH2PlugInNamespace(const QString& value) = 0;
  virtual bool H2PlugIn() const = 0;
  virtual void setH2PlugIn(bool value) = 0;
  virtual QString ProjectGroupName() const = 0;
  virtual void setProjectGroupName(const QString& value) = 0;
  virtual QString HHIdentifier() const = 0;
  virtual void setHHIdentifier(const QString& value) = 0;
  virtual QString HHNamespace() const = 0;
  virtual void setHHNamespace(const QString& value) = 0;
  virtual bool ExtractUntaggedUDTs() const = 0;
  virtual void setExtractUntaggedUDTs(bool value) = 0;
  virtual bool ExtractUntaggedEnumerations() const = 0;
  virtual void setExtractUntaggedEnumerations(bool value) = 0;
  virtual bool ExtractUntaggedEvents() const = 0;
  virtual void setExtractUntaggedEvents(bool value) = 0;
  virtual bool ExtractUntaggedBlocks() const = 0;
  virtual void setExtractUntaggedBlocks(bool value) = 0;
  virtual bool ExtractUntaggedVariables() const = 0;
  virtual void setExtractUntaggedVariables(bool value) = 0;
  virtual bool ExtractUntaggedModules() const = 0;
  virtual void setExtractUntaggedModules(bool value) = 0;
  virtual bool IdentifyVisibility() const = 0;
  virtual void setIdentifyVisibility(bool value) = 0;
  virtual bool DefRelForCollections() const = 0;
  virtual void setDefRelForCollections(bool value) = 0;
  virtual long HelpDescriptionImport() const = 0;
  virtual void setHelpDescriptionImport(long value) = 0;
  virtual long RelationshipsFrom() const = 0;
  virtual void setRelationshipsFrom(long value) = 0;
  virtual long PropertyCommentsFrom() const = 0;
  virtual void setPropertyCommentsFrom(long value) = 0;
  virtual bool AlwaysCopySupportFiles() const = 0;
  virtual void setAlwaysCopySupportFiles(bool value) = 0;
  virtual bool RefreshIfExists() const = 0;
  virtual void setRefreshIfExists(bool value) = 0;
  virtual bool DocumentSourceCode() const = 0;
  virtual void setDocumentSourceCode(bool value) = 0;
  virtual QString CHMFileName() const = 0;
  virtual void setCHMFileName(const QString& value) = 0;
  virtual bool SupressSingleObjectDiagrams() const = 0;
  virtual void setSupressSingleObjectDiagrams(bool value) = 0;
  virtual long PageNestingLevels() const = 0;
  virtual void setPageNestingLevels(long value) = 0;
  virtual long OverviewNestingLevels() const = 0;
  virtual void setOverviewNestingLevels(long value) = 0;
  virtual bool UseALinkMenus() const = 0;
  virtual void setUseALinkMenus(bool value) = 0;
  virtual bool CreateWinhelpStub() const = 0;
  virtual void setCreateWinhelpStub(bool value) = 0;
  virtual bool CompileHelpFile() const = 0;
  virtual void setCompileHelpFile(bool value) = 0;
  virtual bool CopySourceCode() const = 0;
  virtual void setCopySourceCode(bool value) = 0;
  virtual bool WriteHelpDescriptions() const = 0;
  virtual void setWriteHelpDescriptions(bool value) = 0;
  virtual bool CreateContextLinks() const = 0;
  virtual void setCreateContextLinks(bool value) = 0;
  virtual QString OutputFolder() const = 0;
  virtual void setOutputFolder(const QString& value) = 0;
  virtual QString HTMLHelpVersion() const = 0;
  virtual void setHTMLHelpVersion(const QString& value) = 0;
  virtual bool ExcludeFiltersRegExp() const = 0;
  virtual void setExcludeFiltersRegExp(bool value) = 0;
};

}  // namespace sv
