#include "model/ModelFactory.h"

#include <utility>

#include "model/Error.h"

namespace sv {

namespace {
std::shared_ptr<ModelFactory>& installed() {
  static std::shared_ptr<ModelFactory> factory;
  return factory;
}
}  // namespace

ModelFactory& Model() {
  if (!installed())
    Raise(ErrorNumber::ObjectRequired, QStringLiteral("No project model is installed"));
  return *installed();
}

std::shared_ptr<ModelFactory> InstallModel(std::shared_ptr<ModelFactory> factory) {
  return std::exchange(installed(), std::move(factory));
}

}  // namespace sv
