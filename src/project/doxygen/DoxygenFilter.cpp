#include "project/doxygen/DoxygenFilter.h"

#include <QStringList>

namespace sv {

DoxygenFilter::DoxygenFilter(const QString& text) {
  for (const QString& word : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
    const qsizetype equals = word.indexOf(QLatin1Char('='));
    if (equals < 0) continue;
    const QString name = word.left(equals).trimmed().toLower();
    const QString value = word.mid(equals + 1).trimmed().toLower();
    if (name == QLatin1String("includeinherited")) {
      mIncludeInherited = value == QLatin1String("true");
      continue;
    }
    if (name != QLatin1String("scope")) continue;
    mAnyScope = false;
    const QStringList scopes = value.split(QLatin1Char('+'), Qt::SkipEmptyParts);
    mPublic = scopes.contains(QLatin1String("public"));
    mProtected = scopes.contains(QLatin1String("protected"));
    mPrivate = scopes.contains(QLatin1String("private"));
    mFriend = scopes.contains(QLatin1String("friend"));
  }
}

bool DoxygenFilter::Shows(DoxygenAccess access) const {
  if (mAnyScope) return true;
  switch (access) {
    case DoxygenAccess::Public:
    case DoxygenAccess::None:
      return mPublic;
    case DoxygenAccess::Protected:
      return mProtected;
    case DoxygenAccess::Private:
      return mPrivate;
    case DoxygenAccess::Package:
      return mFriend;
  }
  return false;
}

}  // namespace sv
