#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <array>
#include <map>
#include <memory>

#include "model/SVProject.h"
#include "project/model/CodeSource.h"
#include "project/model/ProjectSettings.h"

namespace sv {

class ContentFile;
class ProjectDocTypes;
class ProjectVariableSet;
class TaggedComments;

// A documentation project held in memory. The scalar settings live in one array described by
// SettingTable(), so the project file reads and writes them without naming each. Comments are
// stored by the qualified name of their item. Every setter that changes a value marks the
// project dirty; records handed out as plain collections (filters, files, exclusions) are
// changed by their users, who set Dirty themselves.
class ProjectModel : public SVProject {
 public:
  ProjectModel();
  ~ProjectModel() override;

  ProjectModel(const ProjectModel&) = delete;
  ProjectModel& operator=(const ProjectModel&) = delete;

  // The project file's full path; empty for a project never saved.
  QString FileName() const { return mFileName; }
  void setFileName(const QString& value) { mFileName = value; }

  // Where the code comes from; the reader opens it when the project loads.
  const sv::CodeSource& CodeSource() const { return mCodeSource; }
  void setCodeSource(const sv::CodeSource& value);

  // Generic access to the settings, by the table.
  QVariant SettingValue(Setting id) const { return mValues[index(id)]; }
  // Converts the value to the setting's type; raises TypeMismatch when it does not convert.
  void setSettingValue(Setting id, const QVariant& value);

  // Providers of items by name, compared without regard to case.
  void AddNamespaceProvider(const QString& name, std::shared_ptr<NamespaceProvider> provider);
  std::shared_ptr<NamespaceProvider> GetNamespaceProvider(const QString& name) override;

  // The comments of an item, created empty on first use.
  std::shared_ptr<sv::TaggedComments> CommentsFor(const QString& qualifiedName);
  // The comments stored for an item; null when the project holds none.
  std::shared_ptr<sv::TaggedComments> FindComments(const QString& qualifiedName) const;
  void setCommentsFor(const QString& qualifiedName, std::shared_ptr<sv::TaggedComments> comments);
  // Qualified names of the items with stored comments, in the order first stored.
  QStringList CommentedItems() const;

  // The concrete collections behind DocTypes(), Variables() and CommentFiles().
  std::shared_ptr<ProjectDocTypes> ProjectDocTypeList() const { return mDocTypes; }
  std::shared_ptr<ProjectVariableSet> VariableSet() const { return mVariables; }
  // Adds a content file for a root item, replacing one the root already had.
  std::shared_ptr<ContentFile> AddContentFile(const QString& fileName, const QString& rootItemName,
                                              std::shared_ptr<sv::DocType> docType = nullptr);
  // The content file that holds an item's comments (the deepest root above it); null when the
  // comments belong in the project file.
  std::shared_ptr<ContentFile> ContentFileFor(const QString& qualifiedName) const;
  // Defaults recorded by VariableDefaultValue for variables without a value.
  const std::map<QString, QString>& VariableDefaults() const { return mVariableDefaults; }

  // XML the project file did not understand, kept so that saving writes it back: the path of
  // its place in the file to the fragment.
  std::map<QString, QByteArray>& ForeignXml() { return mForeignXml; }
  const std::map<QString, QByteArray>& ForeignXml() const { return mForeignXml; }

  void setSourceProjectCount(int value) { mSourceProjectCount = value; }
  void setCompiledComponentCount(int value) { mCompiledComponentCount = value; }
  void setVBProjectCount(int value) { mVBProjectCount = value; }
  bool Scanning() const { return mScanning; }

  // SVProject
  void setScanning(bool value) override { mScanning = value; }
  std::shared_ptr<sv::DocTypes> DocTypes() const override;
  std::shared_ptr<sv::ExcludeFilters> ExcludeFilters() const override { return mExcludeFilters; }
  std::shared_ptr<ProjectVariables> Variables() const override;
  std::shared_ptr<sv::AdditionalFiles> AdditionalFiles() const override { return mAdditionalFiles; }
  void setAdditionalFiles(std::shared_ptr<sv::AdditionalFiles> files) override;
  std::shared_ptr<ElementNamespaceMap> ElementNamespaces() const override {
    return mElementNamespaces;
  }
  void setElementNamespaces(std::shared_ptr<ElementNamespaceMap> map) override;
  std::shared_ptr<sv::CommentFiles> CommentFiles() const override { return mCommentFiles; }
  std::shared_ptr<sv::IgnoreRelationships> IgnoreRelationships() const override {
    return mIgnoreRelationships;
  }
  std::shared_ptr<sv::DiagramStyle> DiagramStyle() const override { return mDiagramStyle; }
  // The project file as a path object; null for a project never saved.
  std::shared_ptr<FilePath> ProjectFile() const override;
  std::shared_ptr<StringCollection> ModelCommentProfiles() const override {
    return mModelCommentProfiles;
  }
  void setModelCommentProfiles(std::shared_ptr<StringCollection> profiles) override;
  std::shared_ptr<StringCollection> NamespaceExclusions() const override {
    return mNamespaceExclusions;
  }
  std::shared_ptr<sv::CommentOptions> CommentOptions() const override { return mCommentOptions; }
  int ShowMessage(const QString& text, int flags, const QString& title) override;
  void setShowProtectedFriendMembers(bool value) override;
  bool ShowProtectedMembers() const override { return flag(Setting::ShowProtectedMembers); }
  void setShowProtectedMembers(bool value) override {
    setFlag(Setting::ShowProtectedMembers, value);
  }
  bool ShowFriendMembers() const override { return flag(Setting::ShowFriendMembers); }
  void setShowFriendMembers(bool value) override { setFlag(Setting::ShowFriendMembers, value); }
  bool ShowPrivateMembers() const override { return flag(Setting::ShowPrivateMembers); }
  void setShowPrivateMembers(bool value) override { setFlag(Setting::ShowPrivateMembers, value); }
  bool Dirty() const override { return *mDirty; }
  void setDirty(bool value) override { *mDirty = value; }
  // Fills the output names the author left empty from the project's name.
  void UpdateDefaultsFromComponents() override;
  int SourceProjectCount() const override { return mSourceProjectCount; }
  int CompiledComponentCount() const override { return mCompiledComponentCount; }
  int VBProjectCount() const override { return mVBProjectCount; }
  QString OutputLanguage() const override { return text(Setting::OutputLanguage); }
  void setOutputLanguage(const QString& value) override { setText(Setting::OutputLanguage, value); }
  QString VariableDefaultValue(const QString& name, const QString& defaultValue) override;
  // The file's path relative to the project's folder when it lies inside it, else in full.
  QString GetProjectFilePath(const FilePath& file) const override;
  std::shared_ptr<ItemCollection> NETProjects() const override { return mNETProjects; }
  std::shared_ptr<sv::CommunityConnection> CommunityConnection() const override {
    return mCommunityConnection;
  }
  QString CommunityProjectKey() const override { return text(Setting::CommunityProjectKey); }
  void setCommunityProjectKey(const QString& value) override {
    setText(Setting::CommunityProjectKey, value);
  }

  bool RemoveAfterCompile() const override { return flag(Setting::RemoveAfterCompile); }
  void setRemoveAfterCompile(bool value) override { setFlag(Setting::RemoveAfterCompile, value); }
  bool ClearBeforeBuild() const override { return flag(Setting::ClearBeforeBuild); }
  void setClearBeforeBuild(bool value) override { setFlag(Setting::ClearBeforeBuild, value); }
  bool StripMetaData() const override { return flag(Setting::StripMetaData); }
  void setStripMetaData(bool value) override { setFlag(Setting::StripMetaData, value); }
  long Locale() const override { return number(Setting::Locale); }
  void setLocale(long value) override { setNumber(Setting::Locale, value); }
  QString H2PlugInNamespace() const override { return text(Setting::H2PlugInNamespace); }
  void setH2PlugInNamespace(const QString& value) override {
    setText(Setting::H2PlugInNamespace, value);
  }
  bool H2PlugIn() const override { return flag(Setting::H2PlugIn); }
  void setH2PlugIn(bool value) override { setFlag(Setting::H2PlugIn, value); }
  QString ProjectGroupName() const override { return text(Setting::ProjectGroupName); }
  void setProjectGroupName(const QString& value) override {
    setText(Setting::ProjectGroupName, value);
  }
  QString HHIdentifier() const override { return text(Setting::HHIdentifier); }
  void setHHIdentifier(const QString& value) override { setText(Setting::HHIdentifier, value); }
  QString HHNamespace() const override { return text(Setting::HHNamespace); }
  void setHHNamespace(const QString& value) override { setText(Setting::HHNamespace, value); }
  bool ExtractUntaggedUDTs() const override { return flag(Setting::ExtractUntaggedUDTs); }
  void setExtractUntaggedUDTs(bool value) override { setFlag(Setting::ExtractUntaggedUDTs, value); }
  bool ExtractUntaggedEnumerations() const override {
    return flag(Setting::ExtractUntaggedEnumerations);
  }
  void setExtractUntaggedEnumerations(bool value) override {
    setFlag(Setting::ExtractUntaggedEnumerations, value);
  }
  bool ExtractUntaggedEvents() const override { return flag(Setting::ExtractUntaggedEvents); }
  void setExtractUntaggedEvents(bool value) override {
    setFlag(Setting::ExtractUntaggedEvents, value);
  }
  bool ExtractUntaggedBlocks() const override { return flag(Setting::ExtractUntaggedBlocks); }
  void setExtractUntaggedBlocks(bool value) override {
    setFlag(Setting::ExtractUntaggedBlocks, value);
  }
  bool ExtractUntaggedVariables() const override { return flag(Setting::ExtractUntaggedVariables); }
  void setExtractUntaggedVariables(bool value) override {
    setFlag(Setting::ExtractUntaggedVariables, value);
  }
  bool ExtractUntaggedModules() const override { return flag(Setting::ExtractUntaggedModules); }
  void setExtractUntaggedModules(bool value) override {
    setFlag(Setting::ExtractUntaggedModules, value);
  }
  bool IdentifyVisibility() const override { return flag(Setting::IdentifyVisibility); }
  void setIdentifyVisibility(bool value) override { setFlag(Setting::IdentifyVisibility, value); }
  bool DefRelForCollections() const override { return flag(Setting::DefRelForCollections); }
  void setDefRelForCollections(bool value) override {
    setFlag(Setting::DefRelForCollections, value);
  }
  long HelpDescriptionImport() const override { return number(Setting::HelpDescriptionImport); }
  void setHelpDescriptionImport(long value) override {
    setNumber(Setting::HelpDescriptionImport, value);
  }
  long RelationshipsFrom() const override { return number(Setting::RelationshipsFrom); }
  void setRelationshipsFrom(long value) override { setNumber(Setting::RelationshipsFrom, value); }
  long PropertyCommentsFrom() const override { return number(Setting::PropertyCommentsFrom); }
  void setPropertyCommentsFrom(long value) override {
    setNumber(Setting::PropertyCommentsFrom, value);
  }
  bool AlwaysCopySupportFiles() const override { return flag(Setting::AlwaysCopySupportFiles); }
  void setAlwaysCopySupportFiles(bool value) override {
    setFlag(Setting::AlwaysCopySupportFiles, value);
  }
  bool RefreshIfExists() const override { return flag(Setting::RefreshIfExists); }
  void setRefreshIfExists(bool value) override { setFlag(Setting::RefreshIfExists, value); }
  bool DocumentSourceCode() const override { return flag(Setting::DocumentSourceCode); }
  void setDocumentSourceCode(bool value) override { setFlag(Setting::DocumentSourceCode, value); }
  QString CHMFileName() const override { return text(Setting::CHMFileName); }
  void setCHMFileName(const QString& value) override { setText(Setting::CHMFileName, value); }
  bool SupressSingleObjectDiagrams() const override {
    return flag(Setting::SupressSingleObjectDiagrams);
  }
  void setSupressSingleObjectDiagrams(bool value) override {
    setFlag(Setting::SupressSingleObjectDiagrams, value);
  }
  long PageNestingLevels() const override { return number(Setting::PageNestingLevels); }
  void setPageNestingLevels(long value) override { setNumber(Setting::PageNestingLevels, value); }
  long OverviewNestingLevels() const override { return number(Setting::OverviewNestingLevels); }
  void setOverviewNestingLevels(long value) override {
    setNumber(Setting::OverviewNestingLevels, value);
  }
  bool UseALinkMenus() const override { return flag(Setting::UseALinkMenus); }
  void setUseALinkMenus(bool value) override { setFlag(Setting::UseALinkMenus, value); }
  bool CreateWinhelpStub() const override { return flag(Setting::CreateWinhelpStub); }
  void setCreateWinhelpStub(bool value) override { setFlag(Setting::CreateWinhelpStub, value); }
  bool CompileHelpFile() const override { return flag(Setting::CompileHelpFile); }
  void setCompileHelpFile(bool value) override { setFlag(Setting::CompileHelpFile, value); }
  bool CopySourceCode() const override { return flag(Setting::CopySourceCode); }
  void setCopySourceCode(bool value) override { setFlag(Setting::CopySourceCode, value); }
  bool WriteHelpDescriptions() const override { return flag(Setting::WriteHelpDescriptions); }
  void setWriteHelpDescriptions(bool value) override {
    setFlag(Setting::WriteHelpDescriptions, value);
  }
  bool CreateContextLinks() const override { return flag(Setting::CreateContextLinks); }
  void setCreateContextLinks(bool value) override { setFlag(Setting::CreateContextLinks, value); }
  QString OutputFolder() const override { return text(Setting::OutputFolder); }
  void setOutputFolder(const QString& value) override { setText(Setting::OutputFolder, value); }
  QString HTMLHelpVersion() const override { return text(Setting::HTMLHelpVersion); }
  void setHTMLHelpVersion(const QString& value) override {
    setText(Setting::HTMLHelpVersion, value);
  }
  bool ExcludeFiltersRegExp() const override { return flag(Setting::ExcludeFiltersRegExp); }
  void setExcludeFiltersRegExp(bool value) override {
    setFlag(Setting::ExcludeFiltersRegExp, value);
  }

 private:
  static std::size_t index(Setting id) { return static_cast<std::size_t>(id); }
  bool flag(Setting id) const { return mValues[index(id)].toBool(); }
  long number(Setting id) const { return mValues[index(id)].toInt(); }
  QString text(Setting id) const { return mValues[index(id)].toString(); }
  void setFlag(Setting id, bool value) { setSettingValue(id, QVariant(value)); }
  void setNumber(Setting id, long value) { setSettingValue(id, QVariant(static_cast<int>(value))); }
  void setText(Setting id, const QString& value) { setSettingValue(id, QVariant(value)); }
  template <class T>
  void replace(std::shared_ptr<T>& member, std::shared_ptr<T> value);

  // Shared with the document types and variables, whose setters mark the project dirty too.
  std::shared_ptr<bool> mDirty = std::make_shared<bool>(false);
  std::array<QVariant, kSettingCount> mValues;
  QString mFileName;
  sv::CodeSource mCodeSource;
  bool mScanning = false;
  int mSourceProjectCount = 0;
  int mCompiledComponentCount = 0;
  int mVBProjectCount = 0;

  std::shared_ptr<ProjectDocTypes> mDocTypes;
  std::shared_ptr<ProjectVariableSet> mVariables;
  std::shared_ptr<sv::ExcludeFilters> mExcludeFilters = std::make_shared<sv::ExcludeFilters>();
  std::shared_ptr<sv::AdditionalFiles> mAdditionalFiles = std::make_shared<sv::AdditionalFiles>();
  std::shared_ptr<ElementNamespaceMap> mElementNamespaces = std::make_shared<ElementNamespaceMap>();
  std::shared_ptr<sv::CommentFiles> mCommentFiles = std::make_shared<sv::CommentFiles>();
  std::shared_ptr<sv::IgnoreRelationships> mIgnoreRelationships =
      std::make_shared<sv::IgnoreRelationships>();
  std::shared_ptr<sv::DiagramStyle> mDiagramStyle = std::make_shared<sv::DiagramStyle>();
  std::shared_ptr<StringCollection> mModelCommentProfiles = std::make_shared<StringCollection>();
  std::shared_ptr<StringCollection> mNamespaceExclusions = std::make_shared<StringCollection>();
  std::shared_ptr<sv::CommentOptions> mCommentOptions = std::make_shared<sv::CommentOptions>();
  std::shared_ptr<sv::CommunityConnection> mCommunityConnection =
      std::make_shared<sv::CommunityConnection>();
  std::shared_ptr<ItemCollection> mNETProjects = std::make_shared<ItemCollection>();

  KeyedCollection<std::shared_ptr<NamespaceProvider>> mProviders;
  KeyedCollection<std::shared_ptr<sv::TaggedComments>> mComments;
  std::map<QString, QString> mVariableDefaults;
  std::map<QString, QByteArray> mForeignXml;
};

}  // namespace sv
