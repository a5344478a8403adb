#pragma once

#include <QString>
#include <memory>

namespace sv {

class NamespaceDefs;

// How one kind of item is fetched, captioned, grouped and drawn, and which kinds hang under it.
class NamespaceDef {
 public:
  virtual ~NamespaceDef() = default;

  virtual QString Key() const = 0;
  virtual QString ProviderName() const = 0;
  virtual QString TypeMoniker() const = 0;
  virtual QString GroupCaption() const = 0;
  virtual bool PreloadChildren() const = 0;
  virtual bool LoadChildrenOnAdd() const = 0;
  virtual QString ImageName() const = 0;
  virtual bool Selectable() const = 0;
  virtual bool CanExclude() const = 0;
  virtual QString CaptionExpression() const = 0;
  virtual bool PreloadChildrenInSelection() const = 0;
  virtual bool GroupedInComments() const = 0;
  virtual bool GroupedInSelection() const = 0;
  // Letters: f topic item, t never in the tree, r can be a root.
  virtual QString Flags() const = 0;
  virtual void setPrepared(bool value) = 0;
  virtual std::shared_ptr<NamespaceDefs> Owner() const = 0;
  virtual std::shared_ptr<NamespaceDefs> ChildDefs() const = 0;
};

}  // namespace sv
