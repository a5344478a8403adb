#pragma once

#include <QString>
#include <memory>

#include "model/ModelTypes.h"

namespace sv {

class LinkReplacer;
class NamespaceProvider;
class SVProject;

// One hyperlink found in a project.
class LinkInfo {
 public:
  static constexpr int TypeURL = 0;
  static constexpr int TypeOwnLink = 1;
  static constexpr int TypeHelp2 = 2;
  static constexpr int StatusUnverified = 0;
  static constexpr int StatusBroken = 1;
  static constexpr int StatusOK = 2;
  static constexpr int StatusNotInAdditionalFiles = 3;

  virtual ~LinkInfo() = default;

  virtual QString Key() const = 0;
  // The code item that holds the link.
  virtual std::shared_ptr<CodeItem> Item() const = 0;
  virtual QString URL() const = 0;
  virtual void setURL(const QString& value) = 0;
  virtual int LinkType() const = 0;
  virtual int Status() const = 0;
  virtual void setStatus(int value) = 0;
  // A copy for trying out a new text.
  virtual std::shared_ptr<LinkInfo> Clone() const = 0;
  virtual std::shared_ptr<sv::TaggedComment> TaggedComment() const = 0;
  virtual QString Caption() const = 0;
  virtual QString ItemKey() const = 0;
  // The container that can replace the link.
  virtual std::shared_ptr<LinkReplacer> Source() const = 0;
  // Tests the link and sets Status.
  virtual void Verify() = 0;
  // Works out LinkType and Status.
  virtual void Classify(const std::shared_ptr<SVProject>& project, HtmlDocument* dom,
                        const std::shared_ptr<NamespaceProvider>& provider) = 0;
};

}  // namespace sv
