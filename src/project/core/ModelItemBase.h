#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "model/CodeItem.h"
#include "project/core/CommentList.h"

namespace sv {

// The common and optional members of an item held in memory, for each kind of the contract
// (CodeItem, VBProject, VBComponent, CodeMember). An optional member exists only once it was
// given (addRootFlag, ...): until then reading it answers absent and writing it raises
// NotSupported, as an item of a model without that member does.
template <class Contract>
class ModelItemBase : public Contract {
 public:
  ModelItemBase(QString typeName, QString qualifiedName, QString name)
      : mTypeName(std::move(typeName)),
        mQualifiedName(std::move(qualifiedName)),
        mName(std::move(name)),
        mComments(std::make_shared<CommentList>()) {}

  QString TypeName() const override { return mTypeName; }
  std::optional<QString> QualifiedName() const override { return mQualifiedName; }
  void setQualifiedName(std::optional<QString> value) { mQualifiedName = std::move(value); }
  std::optional<QString> Name() const override { return mName; }
  void setName(std::optional<QString> value) { mName = std::move(value); }
  std::optional<QString> Access() const override { return mAccess; }
  void setAccess(std::optional<QString> value) { mAccess = std::move(value); }
  std::shared_ptr<sv::TaggedComments> TaggedComments() const override { return mComments; }
  // Null leaves the item without comments.
  void setTaggedComments(std::shared_ptr<sv::TaggedComments> comments) override {
    mComments = std::move(comments);
  }

  std::optional<bool> RootFlag() const override { return mRootFlag; }
  void setRootFlag(bool value) override { write(mRootFlag, value, "RootFlag"); }
  void addRootFlag(bool value = false) { mRootFlag = value; }
  std::optional<bool> IncludeFlag() const override { return mIncludeFlag; }
  void setIncludeFlag(bool value) override { write(mIncludeFlag, value, "IncludeFlag"); }
  void addIncludeFlag(bool value = false) { mIncludeFlag = value; }
  std::optional<bool> ExcludeFlag() const override { return mExcludeFlag; }
  void setExcludeFlag(bool value) override { write(mExcludeFlag, value, "ExcludeFlag"); }
  void addExcludeFlag(bool value = false) { mExcludeFlag = value; }
  // Held weakly: the provider keeps items alive.
  std::shared_ptr<CodeItem> VBProjectGroup() const override { return mGroup.lock(); }
  void setVBProjectGroup(const std::shared_ptr<CodeItem>& group) { mGroup = group; }

  // The item this one hangs under in its provider; null for a root.
  std::shared_ptr<CodeItem> Parent() const { return mParent.lock(); }
  void setParent(const std::shared_ptr<CodeItem>& parent) { mParent = parent; }

 private:
  static void write(std::optional<bool>& member, bool value, const char* name) {
    if (!member) CodeItem::unsupported(name);
    member = value;
  }

  QString mTypeName;
  std::optional<QString> mQualifiedName;
  std::optional<QString> mName;
  std::optional<QString> mAccess;
  std::shared_ptr<sv::TaggedComments> mComments;
  std::optional<bool> mRootFlag;
  std::optional<bool> mIncludeFlag;
  std::optional<bool> mExcludeFlag;
  std::weak_ptr<CodeItem> mGroup;
  std::weak_ptr<CodeItem> mParent;
};

}  // namespace sv
