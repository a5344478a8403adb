#pragma once

#include <QString>
#include <memory>

#include "model/ModelTypes.h"

namespace sv {

class ISVProjectHost;

// What the plug-in of a document type implements: it takes part in the project pages.
class DocTypePlugIn {
 public:
  virtual ~DocTypePlugIn() = default;

  virtual void Initialise(ISVProjectHost* host) = 0;
  virtual void CastVotes() = 0;
  virtual std::shared_ptr<ItemCollection> GetRootItems(const QString& key) = 0;
  virtual std::shared_ptr<ItemCollection> GetChildItems(const std::shared_ptr<CodeItem>& item) = 0;
  // Whether a custom page is relevant: the number of items it would show.
  virtual int SelectorItemCount(const QString& tag) = 0;
  virtual bool ItemsPresent() = 0;
  virtual bool ItemMatches(const std::shared_ptr<CodeItem>& item) = 0;
};

}  // namespace sv
