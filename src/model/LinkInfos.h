#pragma once

#include <QString>
#include <memory>

#include "model/ItemRange.h"
#include "model/LinkInfo.h"

namespace sv {

// The links of a project, by bookmark.
class LinkInfos {
 public:
  virtual ~LinkInfos() = default;

  virtual std::shared_ptr<LinkInfo> Item(int index) const = 0;
  virtual std::shared_ptr<LinkInfo> Item(const QString& key) const = 0;
  virtual void Add(std::shared_ptr<LinkInfo> link) = 0;
  virtual int Count() const = 0;

  ItemIterator<LinkInfos, std::shared_ptr<LinkInfo>> begin() const { return {this, 1}; }
  ItemIterator<LinkInfos, std::shared_ptr<LinkInfo>> end() const { return {this, Count() + 1}; }
};

}  // namespace sv
