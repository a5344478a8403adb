#include "project/core/MemoryDDP.h"

#include "model/CodeItem.h"

namespace sv {

std::shared_ptr<NamespaceDef> MemoryDDP::ResolveNamespaceDef(
    const std::shared_ptr<NamespaceDef>& def, const std::shared_ptr<CodeItem>& item,
    const QString& typeMoniker, const std::shared_ptr<CodeItem>& parent) {
  (void)typeMoniker;
  (void)parent;
  mLastResolved = item ? item->QualifiedName().value_or(QString()) : QString();
  auto rule = mRules.constFind(mLastResolved);
  return rule == mRules.constEnd() ? def : *rule;
}

QString MemoryDDP::EvaluateCaption(const QString& expression) {
  auto byItem = mItemCaptions.constFind(mLastResolved);
  if (byItem != mItemCaptions.constEnd()) return *byItem;
  return mCaptions.value(expression, expression);
}

void MemoryDDP::AddRule(const QString& qualifiedName, std::shared_ptr<NamespaceDef> def) {
  mRules.insert(qualifiedName, std::move(def));
}

void MemoryDDP::setCaption(const QString& expression, const QString& caption) {
  mCaptions.insert(expression, caption);
}

void MemoryDDP::setItemCaption(const QString& qualifiedName, const QString& caption) {
  mItemCaptions.insert(qualifiedName, caption);
}

}  // namespace sv
