#pragma once

#include <QString>
#include <memory>

namespace sv {

class LinkInfo;
class SVProject;

// Rewrites a link in the place that holds it.
class LinkReplacer {
 public:
  virtual ~LinkReplacer() = default;

  virtual void ReplaceLink(const std::shared_ptr<SVProject>& project,
                           const std::shared_ptr<LinkInfo>& link, const QString& newURL,
                           const QString& reserved) = 0;
};

}  // namespace sv
