#pragma once

#include <QString>
#include <memory>

#include "model/ItemRange.h"

namespace sv {

class NamespaceDef;

// A set of definitions of item kinds, one set per source of documented items ("sv.net",
// "sv.vbsource", ...). Item 1 is the root definition.
class NamespaceDefs {
 public:
  virtual ~NamespaceDefs() = default;

  virtual QString Name() const = 0;
  virtual QString Caption() const = 0;
  // Letters p, i, f, t: which Show commands a tree toolbar offers.
  virtual QString ViewOptionFlags() const = 0;
  virtual std::shared_ptr<NamespaceDef> Item(int index) const = 0;
  virtual std::shared_ptr<NamespaceDef> Item(const QString& key) const = 0;
  virtual void Add(std::shared_ptr<NamespaceDef> def, const QString& key) = 0;
  virtual int Count() const = 0;
  // The definition whose TypeMoniker matches; null when none does.
  virtual std::shared_ptr<NamespaceDef> ItemByMoniker(const QString& moniker) const = 0;

  ItemIterator<NamespaceDefs, std::shared_ptr<NamespaceDef>> begin() const { return {this, 1}; }
  ItemIterator<NamespaceDefs, std::shared_ptr<NamespaceDef>> end() const {
    return {this, Count() + 1};
  }
};

}  // namespace sv
