#include "cli/CliErrorReport.h"

#include <QTextStream>

namespace sv {

CliErrorReport::CliErrorReport(QTextStream& err, std::shared_ptr<int> failures)
    : mErr(err), mFailures(std::move(failures)) {}

void CliErrorReport::ErrorHandler(const QString& product, const QString& version,
                                  const QString& module, const QString& procedure, long line,
                                  long number, const QString& description,
                                  const QString& variables) {
  (void)product;
  (void)version;
  (void)line;
  (void)variables;
  ++*mFailures;
  mErr << "scrivara: " << description << " (error " << number << " in " << module << '.'
       << procedure << ")\n";
  mErr.flush();
}

}  // namespace sv
