#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"
#include "model/NamespaceDefs.h"

namespace sv {

class Definition;

// A set of definitions keyed by Key without regard to case; item 1 is the root definition.
// When a set goes it drops the child lists of its definitions that are left without an owner:
// that ends the definitions of the set that owned them (see Adopt) and breaks the cycles that
// recursive definitions (a namespace inside a namespace) make.
class DefinitionSet : public NamespaceDefs, public std::enable_shared_from_this<DefinitionSet> {
 public:
  DefinitionSet() = default;
  DefinitionSet(QString name, QString caption, QString viewOptionFlags);
  ~DefinitionSet() override;

  DefinitionSet(const DefinitionSet&) = delete;
  DefinitionSet& operator=(const DefinitionSet&) = delete;

  QString Name() const override { return mName; }
  QString Caption() const override { return mCaption; }
  QString ViewOptionFlags() const override { return mViewOptionFlags; }
  void setViewOptionFlags(const QString& value) { mViewOptionFlags = value; }
  // Raises SubscriptOutOfRange for a bad index.
  std::shared_ptr<NamespaceDef> Item(int index) const override { return mDefs.Item(index); }
  // Null for a missing key.
  std::shared_ptr<NamespaceDef> Item(const QString& key) const override;
  // Raises DuplicateKey for a key already present.
  void Add(std::shared_ptr<NamespaceDef> def, const QString& key) override;
  int Count() const override { return mDefs.Count(); }
  // Monikers compare without regard to case; the first match wins.
  std::shared_ptr<NamespaceDef> ItemByMoniker(const QString& moniker) const override;

  // Adds a definition of ours under its key and makes this set its owner.
  void Adopt(const std::shared_ptr<Definition>& def);
  void Clear() { mDefs.Clear(); }

 private:
  QString mName;
  QString mCaption;
  QString mViewOptionFlags;
  KeyedCollection<std::shared_ptr<NamespaceDef>> mDefs;
};

}  // namespace sv
