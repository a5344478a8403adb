#include "project/model/ContentFile.h"

namespace sv {

bool ContentFile::Holds(const QString& qualifiedName) const {
  if (qualifiedName.compare(mRootItemName, Qt::CaseInsensitive) == 0) return true;
  return qualifiedName.size() > mRootItemName.size() &&
         qualifiedName.at(mRootItemName.size()) == QLatin1Char('~') &&
         qualifiedName.startsWith(mRootItemName, Qt::CaseInsensitive);
}

}  // namespace sv
