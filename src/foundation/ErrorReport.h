#pragma once

#include <QString>

namespace sv {

// The class name under which the report object is registered, and the product it reports for.
inline constexpr char ErrorReportClass[] = "CorvaError.Error";
inline constexpr char ErrorReportProduct[] = "SVControls2008";

// The outside object that receives a failure report. Action is read after ErrorHandler returns.
class IErrorReport {
 public:
  virtual ~IErrorReport();
  virtual void ErrorHandler(const QString& product, const QString& version, const QString& module,
                            const QString& procedure, long line, long number,
                            const QString& description, const QString& variables) = 0;
  virtual QString Action() const = 0;
};

}  // namespace sv
