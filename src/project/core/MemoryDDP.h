#pragma once

#include <QHash>
#include <QString>
#include <memory>

#include "model/DDP.h"

namespace sv {

// The data-driven part of MemoryProvider. ResolveNamespaceDef answers the definition registered
// for the item (AddRule) or else the one it was given; EvaluateCaption answers the caption
// registered for the item last resolved, else the one registered for the expression, else the
// expression itself.
class MemoryDDP : public DDP {
 public:
  void SetParentContext(const std::shared_ptr<CodeItem>& parent) override {
    mParentContext = parent;
  }
  std::shared_ptr<NamespaceDef> ResolveNamespaceDef(
      const std::shared_ptr<NamespaceDef>& def, const std::shared_ptr<CodeItem>& item,
      const QString& typeMoniker, const std::shared_ptr<CodeItem>& parent) override;
  QString EvaluateCaption(const QString& expression) override;

  // Items of this qualified name resolve to def.
  void AddRule(const QString& qualifiedName, std::shared_ptr<NamespaceDef> def);
  void setCaption(const QString& expression, const QString& caption);
  void setItemCaption(const QString& qualifiedName, const QString& caption);

  // What the tree told us last.
  std::shared_ptr<CodeItem> ParentContext() const { return mParentContext.lock(); }
  QString LastResolved() const { return mLastResolved; }

 private:
  QHash<QString, std::shared_ptr<NamespaceDef>> mRules;
  QHash<QString, QString> mCaptions;
  QHash<QString, QString> mItemCaptions;
  std::weak_ptr<CodeItem> mParentContext;
  QString mLastResolved;  // qualified name of the item last resolved
};

}  // namespace sv
