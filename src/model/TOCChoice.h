#pragma once

#include <QString>
#include <memory>

namespace sv {

class TOCDefinition;

// Which table of contents a document type uses.
class TOCChoice {
 public:
  static constexpr long SourceCustom = 1;
  static constexpr long SourceTemplate = 2;

  virtual ~TOCChoice() = default;

  virtual std::shared_ptr<sv::TOCDefinition> TOCDefinition() const = 0;
  virtual void setTOCDefinition(const std::shared_ptr<sv::TOCDefinition>& definition) = 0;
  virtual long Source() const = 0;
  virtual void setSource(long value) = 0;
  virtual QString DefinitionName() const = 0;
  virtual void setDefinitionName(const QString& value) = 0;
};

}  // namespace sv
