#pragma once

#include <QString>
#include <memory>

#include "model/KeyedCollection.h"
#include "model/ParserDataProvider.h"
#include "model/ParserElement.h"

namespace sv {

// A document loaded into the template parser.
class ParserTemplate {
 public:
  virtual ~ParserTemplate() = default;

  // Item 1 holds the elements in document order.
  virtual std::shared_ptr<KeyedCollection<std::shared_ptr<ParserElements>>> Sections() const = 0;
  virtual void setDataProvider(std::shared_ptr<ParserDataProvider> provider) = 0;
  virtual void setEndTagSuffix(const QString& value) = 0;
  virtual void setEndTagPrefix(const QString& value) = 0;
  virtual void setStartTagSuffix(const QString& value) = 0;
  virtual void setStartTagPrefix(const QString& value) = 0;
  virtual void Load(const QString& html) = 0;
  virtual QString Render() = 0;
  // Empty when the last Load went well.
  virtual QString LoadErrors() const = 0;
  virtual void setReplaceElementText(bool value) = 0;
  virtual void setProviderActive(bool value) = 0;
  virtual void setUseCustomTags(bool value) = 0;
};

}  // namespace sv
