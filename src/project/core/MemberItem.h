#pragma once

#include "model/CodeMember.h"
#include "project/core/ModelItemBase.h"

namespace sv {

// A member of a class or module.
class MemberItem : public ModelItemBase<CodeMember> {
 public:
  MemberItem(QString qualifiedName, QString name, QString typeName = QStringLiteral("Member"))
      : ModelItemBase(std::move(typeName), std::move(qualifiedName), std::move(name)) {}

  bool Overloaded() const override { return mOverloaded; }
  void setOverloaded(bool value) { mOverloaded = value; }
  bool IsExplicit() const override { return mIsExplicit; }
  void setIsExplicit(bool value) { mIsExplicit = value; }
  bool HasOverloadBlocks() const override { return mHasOverloadBlocks; }
  void setHasOverloadBlocks(bool value) { mHasOverloadBlocks = value; }

 private:
  bool mOverloaded = false;
  bool mIsExplicit = false;
  bool mHasOverloadBlocks = false;
};

}  // namespace sv
