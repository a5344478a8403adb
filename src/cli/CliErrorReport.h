#pragma once

#include <QString>
#include <memory>

#include "foundation/ErrorReport.h"

class QTextStream;

namespace sv {

// The report object of the tool: a failure that a component trapped is written to the error
// stream as one line, and counted, so that the command can end with a non-zero exit code.
class CliErrorReport : public IErrorReport {
 public:
  CliErrorReport(QTextStream& err, std::shared_ptr<int> failures);

  void ErrorHandler(const QString& product, const QString& version, const QString& module,
                    const QString& procedure, long line, long number, const QString& description,
                    const QString& variables) override;
  QString Action() const override { return {}; }

 private:
  QTextStream& mErr;
  std::shared_ptr<int> mFailures;
};

}  // namespace sv
