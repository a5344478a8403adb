#pragma once

#include "foundation/ErrorReport.h"

#include <QString>
#include <functional>
#include <memory>

namespace sv {

// Report objects by class name (without regard to case), as the host registers them.
class ReportObjectRegistry {
 public:
  using Factory = std::function<std::shared_ptr<IErrorReport>()>;

  // Replaces any factory of the same name.
  static void Register(const QString& className, Factory factory);
  static void Unregister(const QString& className);
  // A new report object, or null when no factory has that name. A failing factory throws.
  static std::shared_ptr<IErrorReport> Create(const QString& className);
};

}  // namespace sv
