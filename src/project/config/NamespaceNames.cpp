#include "project/config/NamespaceNames.h"

#include <QStringList>

#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "project/config/ConfigFile.h"

namespace sv {

void NamespaceNames::AddSet(const NamespaceDefs& defs) {
  for (const auto& def : defs) {
    mKinds.insert(def->Key().toLower());
    mKinds.insert(def->TypeMoniker().toLower());
  }
}

void NamespaceNames::AddList(const ConfigFile& file, const pugi::xml_node& node,
                             const char* nameAttribute, const char* listAttribute) {
  const QString name = file.Required(node, nameAttribute);
  if (mLists.contains(name.toLower()))
    file.Fail(node, QStringLiteral("The list @%1 is defined twice.").arg(name));
  mLists.insert(name.toLower(), List(file, node, listAttribute));
}

QString NamespaceNames::List(const ConfigFile& file, const pugi::xml_node& node,
                             const char* attribute, const QString& extra) const {
  QStringList kinds;
  const auto add = [&kinds](const QString& kind) {
    if (!kinds.contains(kind, Qt::CaseInsensitive)) kinds << kind;
  };
  for (const QString& raw : ConfigFile::Text(node, attribute).split(QLatin1Char(','))) {
    const QString entry = raw.trimmed();
    if (entry.isEmpty()) continue;
    if (entry.startsWith(QLatin1Char('@'))) {
      const auto list = mLists.constFind(entry.mid(1).toLower());
      if (list == mLists.constEnd())
        file.Fail(node, QStringLiteral("The list %1 is not defined above.").arg(entry));
      for (const QString& kind : list->split(QLatin1Char(','), Qt::SkipEmptyParts)) add(kind);
      continue;
    }
    if (!mKinds.contains(entry.toLower()) && entry.compare(extra, Qt::CaseInsensitive) != 0)
      file.Fail(node, QStringLiteral("The attribute %1 names %2, which no definition set defines.")
                          .arg(QLatin1String(attribute), entry));
    add(entry);
  }
  return kinds.join(QLatin1Char(','));
}

}  // namespace sv
