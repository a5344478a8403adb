#include "project/config/AppConfig.h"

#include <unistd.h>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "model/Error.h"
#include "project/config/AppDataFolder.h"
#include "project/config/DefinitionSetReader.h"
#include "project/config/ElementDefinitionReader.h"
#include "project/config/NamespaceNames.h"
#include "project/config/TagDefinitionReader.h"
#include "project/core/DefinitionSet.h"
#include "project/core/TagDefinitionSet.h"
#include "project/core/ViewSettings.h"

namespace sv {

AppConfig::AppConfig(const QString& dataFolder)
    : mAppPath(NormalFolder(dataFolder)),
      mTemplates(std::make_shared<TemplateCollection>()),
      mViewSettings(std::make_shared<ViewSettings>()) {
  const QString config = mAppPath + QStringLiteral("config/");
  const QDir namespaces(config + QStringLiteral("namespaces"));
  if (!namespaces.exists())
    Raise(ErrorNumber::PathNotFound,
          QStringLiteral("The configuration folder %1 does not exist.").arg(namespaces.path()));
  NamespaceNames kinds;
  const QStringList files =
      namespaces.entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name);
  for (const QString& name : files) {
    const QString path = namespaces.filePath(name);
    auto set = DefinitionSetReader::Read(path);
    if (mNamespaceDefs.Contains(set->Name()))
      Raise(ErrorNumber::BadFileFormat,
            QStringLiteral("%1: the definition set %2 is defined in another file too.")
                .arg(path, set->Name()));
    kinds.AddSet(*set);
    mNamespaceDefs.Add(set, set->Name());
  }
  mTagDefs = TagDefinitionReader::Read(config + QStringLiteral("tags.xml"), kinds);
  mElementDefs = ElementDefinitionReader::Read(config + QStringLiteral("elements.xml"), kinds);
}

AppConfig::~AppConfig() = default;

std::shared_ptr<TaggedCommentDefs> AppConfig::TaggedCommentDefs() const {
  return mTagDefs;
}

std::shared_ptr<ProjectViewSettings> AppConfig::ProjectViewSettings() const {
  return mViewSettings;
}

QString AppConfig::TempFolder() const {
  // One folder per user id: the system folder is shared, and a name taken by someone else must
  // not become our scratch space.
  const QString folder =
      NormalFolder(QStandardPaths::writableLocation(QStandardPaths::TempLocation) +
                   QStringLiteral("/scrivara-%1").arg(getuid()));
  if (!QDir().mkpath(folder))
    Raise(ErrorNumber::PathNotFound,
          QStringLiteral("The temporary folder %1 cannot be made.").arg(folder));
  const QFileInfo info(QDir::cleanPath(folder));
  if (info.ownerId() != getuid() || info.isSymLink())
    Raise(ErrorNumber::PathNotFound,
          QStringLiteral("The temporary folder %1 belongs to another user.").arg(folder));
  QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  return folder;
}

std::shared_ptr<NamespaceDefs> AppConfig::NamespaceDefs(const QString& key) const {
  return mNamespaceDefs.Find(key).value_or(nullptr);
}

QStringList AppConfig::NamespaceDefsNames() const {
  QStringList names;
  for (int index = 1; index <= mNamespaceDefs.Count(); ++index)
    names << mNamespaceDefs.KeyAt(index);
  return names;
}

}  // namespace sv
