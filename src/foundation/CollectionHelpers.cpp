#include "foundation/CollectionHelpers.h"

#include "foundation/Services.h"

#include <QFileInfo>

namespace sv {

QString CollectionHelpers::TextBeforeColon(const QString& key) {
  const qsizetype colon = key.indexOf(u':');
  return colon < 0 ? key : key.left(colon);
}

QString CollectionHelpers::TextAfterColon(const QString& key) {
  const qsizetype colon = key.indexOf(u':');
  return colon < 0 ? QString() : key.mid(colon + 1);
}

QString CollectionHelpers::GetField(const QString& text, const QString& separator, int index) {
  if (index < 1) return {};
  if (separator.isEmpty()) return index == 1 ? text : QString();
  const QStringList fields = text.split(separator);
  return index <= fields.size() ? fields[index - 1] : QString();
}

bool CollectionHelpers::IsBlank(const QVariant& value) {
  return !value.isValid() || value.isNull() || value.toString().isEmpty();
}

StringCollection CollectionHelpers::SplitToCollection(const QString& text,
                                                      const QString& delimiter) {
  StringCollection parts;
  if (text.isEmpty()) return parts;
  if (delimiter.isEmpty()) {
    parts.Add(text);
    return parts;
  }
  for (const QString& part : text.split(delimiter)) parts.Add(part);
  return parts;
}

bool CollectionHelpers::IsValidPath(const QString& path) {
  return !path.isEmpty() && QFileInfo::exists(path);
}

QString CollectionHelpers::BrowseForSave(const QString& title, const QString& filter,
                                         const QString& initialPath, QObject* owner) {
  return Services::Picker().PickSaveFile(title, filter, initialPath, owner);
}

QString CollectionHelpers::BrowseForOpen(const QString& title, const QString& filter,
                                         const QString& initialPath, QObject* owner) {
  return Services::Picker().PickOpenFile(title, filter, initialPath, owner);
}

int CollectionHelpers::FindText(int start, const QString& text, const QString& find, int compare) {
  if (start < 1)
    Raise(ErrorNumber::InvalidCall, QStringLiteral("Invalid procedure call or argument"));
  if (text.isEmpty()) return 0;
  if (find.isEmpty()) return start <= text.size() + 1 ? start : 0;
  const Qt::CaseSensitivity cs = compare == 1 ? Qt::CaseInsensitive : Qt::CaseSensitive;
  return static_cast<int>(text.indexOf(find, start - 1, cs)) + 1;
}

}  // namespace sv
