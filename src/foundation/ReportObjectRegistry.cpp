#include "foundation/ReportObjectRegistry.h"

#include <map>

namespace sv {

IErrorReport::~IErrorReport() = default;

namespace {

std::map<QString, ReportObjectRegistry::Factory>& Factories() {
  static std::map<QString, ReportObjectRegistry::Factory> factories;
  return factories;
}

}  // namespace

void ReportObjectRegistry::Register(const QString& className, Factory factory) {
  Factories()[className.toLower()] = std::move(factory);
}

void ReportObjectRegistry::Unregister(const QString& className) {
  Factories().erase(className.toLower());
}

std::shared_ptr<IErrorReport> ReportObjectRegistry::Create(const QString& className) {
  const auto found = Factories().find(className.toLower());
  if (found == Factories().end() || !found->second) return nullptr;
  return found->second();
}

}  // namespace sv
