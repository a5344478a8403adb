#pragma once

#include <QString>
#include <memory>

#include "model/NamespaceDef.h"

namespace sv {

class DefinitionSet;

// A definition of one kind of item, with a setter for every member. Its owner is held weakly
// (the owner holds the definition); its child definitions are its own set.
class Definition : public NamespaceDef {
 public:
  explicit Definition(QString key);

  QString Key() const override { return mKey; }
  QString ProviderName() const override { return mProviderName; }
  void setProviderName(const QString& value) { mProviderName = value; }
  QString TypeMoniker() const override { return mTypeMoniker; }
  void setTypeMoniker(const QString& value) { mTypeMoniker = value; }
  QString GroupCaption() const override { return mGroupCaption; }
  void setGroupCaption(const QString& value) { mGroupCaption = value; }
  bool PreloadChildren() const override { return mPreloadChildren; }
  void setPreloadChildren(bool value) { mPreloadChildren = value; }
  bool LoadChildrenOnAdd() const override { return mLoadChildrenOnAdd; }
  void setLoadChildrenOnAdd(bool value) { mLoadChildrenOnAdd = value; }
  QString ImageName() const override { return mImageName; }
  void setImageName(const QString& value) { mImageName = value; }
  bool Selectable() const override { return mSelectable; }
  void setSelectable(bool value) { mSelectable = value; }
  bool CanExclude() const override { return mCanExclude; }
  void setCanExclude(bool value) { mCanExclude = value; }
  QString CaptionExpression() const override { return mCaptionExpression; }
  void setCaptionExpression(const QString& value) { mCaptionExpression = value; }
  bool PreloadChildrenInSelection() const override { return mPreloadChildrenInSelection; }
  void setPreloadChildrenInSelection(bool value) { mPreloadChildrenInSelection = value; }
  bool GroupedInComments() const override { return mGroupedInComments; }
  void setGroupedInComments(bool value) { mGroupedInComments = value; }
  bool GroupedInSelection() const override { return mGroupedInSelection; }
  void setGroupedInSelection(bool value) { mGroupedInSelection = value; }
  QString Flags() const override { return mFlags; }
  void setFlags(const QString& value) { mFlags = value; }
  bool Prepared() const { return mPrepared; }
  void setPrepared(bool value) override { mPrepared = value; }
  std::shared_ptr<NamespaceDefs> Owner() const override { return mOwner.lock(); }
  void setOwner(const std::shared_ptr<NamespaceDefs>& owner) { mOwner = owner; }
  std::shared_ptr<NamespaceDefs> ChildDefs() const override;
  // Appends a child definition under its key.
  void AddChild(const std::shared_ptr<NamespaceDef>& child);
  // Drops the child definitions; see DefinitionSet for why.
  void ClearChildren();

 private:
  QString mKey;
  QString mProviderName;
  QString mTypeMoniker;
  QString mGroupCaption;
  QString mImageName;
  QString mCaptionExpression;
  QString mFlags;
  bool mPreloadChildren = false;
  bool mLoadChildrenOnAdd = false;
  bool mSelectable = true;
  bool mCanExclude = true;
  bool mPreloadChildrenInSelection = false;
  bool mGroupedInComments = false;
  bool mGroupedInSelection = false;
  bool mPrepared = false;
  std::weak_ptr<NamespaceDefs> mOwner;
  std::shared_ptr<DefinitionSet> mChildDefs;
};

}  // namespace sv
