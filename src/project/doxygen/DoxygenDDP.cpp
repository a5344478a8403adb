#include "project/doxygen/DoxygenDDP.h"

#include "model/CodeItem.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"

namespace sv {

std::shared_ptr<NamespaceDef> DoxygenDDP::ResolveNamespaceDef(
    const std::shared_ptr<NamespaceDef>& def, const std::shared_ptr<CodeItem>& item,
    const QString& typeMoniker, const std::shared_ptr<CodeItem>& parent) {
  (void)typeMoniker;
  (void)parent;
  mResolved = item;
  if (!def || !item) return def;
  const auto owner = def->Owner();
  const auto own = owner ? owner->Item(item->TypeName()) : nullptr;
  return own ? own : def;
}

QString DoxygenDDP::EvaluateCaption(const QString& expression) {
  const auto item = mResolved.lock();
  if (!item) return expression;
  QString caption = expression;
  caption.replace(QLatin1String("[Name]"), item->Name().value_or(QString()));
  caption.replace(QLatin1String("[QualifiedName]"), item->QualifiedName().value_or(QString()));
  caption.replace(QLatin1String("[Kind]"), item->TypeName());
  return caption;
}

}  // namespace sv
