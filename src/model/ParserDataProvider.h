#pragma once

#include <QString>
#include <memory>

namespace sv {

class ParserElement;

// What the template parser asks for the text of each meta element while it renders.
class ParserDataProvider {
 public:
  virtual ~ParserDataProvider() = default;

  virtual QString ProvideData(const std::shared_ptr<ParserElement>& element) = 0;
};

}  // namespace sv
