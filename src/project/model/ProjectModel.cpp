#include "project/model/ProjectModel.h"

#include <QDir>
#include <QFileInfo>

#include "foundation/FilePath.h"
#include "foundation/Services.h"
#include "model/Error.h"
#include "project/core/CommentList.h"
#include "project/model/ContentFile.h"
#include "project/model/ProjectDocTypes.h"
#include "project/model/ProjectVariableSet.h"

namespace sv {

ProjectModel::ProjectModel()
    : mDocTypes(std::make_shared<ProjectDocTypes>(mDirty)),
      mVariables(std::make_shared<ProjectVariableSet>(mDirty)) {
  for (const SettingDef& def : SettingTable()) mValues[index(def.id)] = def.defaultValue;
}

ProjectModel::~ProjectModel() = default;

void ProjectModel::setSettingValue(Setting id, const QVariant& value) {
  const auto converted = ConvertSetting(id, value);
  if (!converted)
    Raise(ErrorNumber::TypeMismatch,
          QStringLiteral("%1 cannot be set to \"%2\"")
              .arg(QLatin1String(SettingDefOf(id).name), value.toString()));
  QVariant& slot = mValues[index(id)];
  if (slot == *converted) return;
  slot = *converted;
  *mDirty = true;
}

void ProjectModel::setCodeSource(const sv::CodeSource& value) {
  if (mCodeSource == value) return;
  mCodeSource = value;
  *mDirty = true;
}

void ProjectModel::AddNamespaceProvider(const QString& name,
                                        std::shared_ptr<NamespaceProvider> provider) {
  if (mProviders.Contains(name)) mProviders.Remove(name);
  mProviders.Add(std::move(provider), name);
}

std::shared_ptr<NamespaceProvider> ProjectModel::GetNamespaceProvider(const QString& name) {
  return mProviders.Find(name).value_or(nullptr);
}

std::shared_ptr<TaggedComments> ProjectModel::CommentsFor(const QString& qualifiedName) {
  if (auto existing = FindComments(qualifiedName)) return existing;
  auto comments = std::make_shared<CommentList>();
  mComments.Add(comments, qualifiedName);
  return comments;
}

std::shared_ptr<TaggedComments> ProjectModel::FindComments(const QString& qualifiedName) const {
  return mComments.Find(qualifiedName).value_or(nullptr);
}

void ProjectModel::setCommentsFor(const QString& qualifiedName,
                                  std::shared_ptr<sv::TaggedComments> comments) {
  const int at = mComments.IndexOf(qualifiedName);
  if (at == 0) {
    mComments.Add(std::move(comments), qualifiedName);
  } else {
    // Keep the item's place and name so that a save writes the items in a stable order.
    const QString name = mComments.KeyAt(at);
    mComments.Remove(at);
    if (at > mComments.Count())
      mComments.Add(std::move(comments), name);
    else
      mComments.Add(std::move(comments), name, at);
  }
  *mDirty = true;
}

QStringList ProjectModel::CommentedItems() const {
  QStringList names;
  names.reserve(mComments.Count());
  for (int i = 1; i <= mComments.Count(); ++i) names.append(mComments.KeyAt(i));
  return names;
}

std::shared_ptr<ContentFile> ProjectModel::AddContentFile(const QString& fileName,
                                                          const QString& rootItemName,
                                                          std::shared_ptr<sv::DocType> docType) {
  if (mCommentFiles->Contains(rootItemName)) mCommentFiles->Remove(rootItemName);
  auto file = std::make_shared<ContentFile>(fileName, rootItemName, std::move(docType));
  mCommentFiles->Add(file, rootItemName);
  *mDirty = true;
  return file;
}

std::shared_ptr<ContentFile> ProjectModel::ContentFileFor(const QString& qualifiedName) const {
  std::shared_ptr<ContentFile> deepest;
  for (const auto& entry : *mCommentFiles) {
    auto file = std::dynamic_pointer_cast<ContentFile>(entry);
    if (!file || !file->Holds(qualifiedName)) continue;
    if (!deepest || file->RootItemName().size() > deepest->RootItemName().size()) deepest = file;
  }
  return deepest;
}

std::shared_ptr<sv::DocTypes> ProjectModel::DocTypes() const {
  return mDocTypes;
}

std::shared_ptr<ProjectVariables> ProjectModel::Variables() const {
  return mVariables;
}

template <class T>
void ProjectModel::replace(std::shared_ptr<T>& member, std::shared_ptr<T> value) {
  if (!value) value = std::make_shared<T>();
  if (member == value) return;
  member = std::move(value);
  *mDirty = true;
}

void ProjectModel::setAdditionalFiles(std::shared_ptr<sv::AdditionalFiles> files) {
  replace(mAdditionalFiles, std::move(files));
}

void ProjectModel::setElementNamespaces(std::shared_ptr<ElementNamespaceMap> map) {
  replace(mElementNamespaces, std::move(map));
}

void ProjectModel::setModelCommentProfiles(std::shared_ptr<StringCollection> profiles) {
  replace(mModelCommentProfiles, std::move(profiles));
}

int ProjectModel::ShowMessage(const QString& text, int flags, const QString& title) {
  return Services::Message().ShowMessage(text, flags, title);
}

void ProjectModel::setShowProtectedFriendMembers(bool value) {
  setShowProtectedMembers(value);
  setShowFriendMembers(value);
}

void ProjectModel::UpdateDefaultsFromComponents() {
  QString name = ProjectGroupName();
  if (name.isEmpty()) name = QFileInfo(mFileName).completeBaseName();
  if (name.isEmpty()) return;
  if (CHMFileName().isEmpty()) setCHMFileName(name + QStringLiteral(".chm"));
  if (HHNamespace().isEmpty()) setHHNamespace(name);
}

QString ProjectModel::VariableDefaultValue(const QString& name, const QString& defaultValue) {
  if (const auto variable = mVariables->Item(name); variable && variable->HasValue())
    return variable->Value();
  mVariableDefaults[name] = defaultValue;
  return defaultValue;
}

std::shared_ptr<FilePath> ProjectModel::ProjectFile() const {
  if (mFileName.isEmpty()) return nullptr;
  return std::make_shared<FilePath>(mFileName);
}

QString ProjectModel::GetProjectFilePath(const FilePath& file) const {
  const QString full = file.FullPath();
  if (mFileName.isEmpty()) return full;
  const QString relative = QFileInfo(mFileName).absoluteDir().relativeFilePath(full);
  return relative.startsWith(QLatin1String("..")) ? full : relative;
}

}  // namespace sv
