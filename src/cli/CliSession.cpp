#include "cli/CliSession.h"

#include "cli/CliErrorReport.h"
#include "foundation/ConsoleMessageService.h"
#include "foundation/ReportObjectRegistry.h"
#include "foundation/Services.h"
#include "model/NamespaceDefs.h"
#include "project/config/AppConfig.h"
#include "project/config/AppDataFolder.h"
#include "project/core/ProjectModelFactory.h"

namespace sv {
namespace {
const QString kCppDefinitions = QStringLiteral("sv.cpp");
}  // namespace

CliSession::CliSession(QTextStream& err)
    : mFailures(std::make_shared<int>(0)), mConfig(std::make_shared<AppConfig>(AppDataFolder())) {
  mPreviousMessages = Services::Install(std::make_shared<ConsoleMessageService>());
  mPreviousModel = InstallModel(std::make_shared<ProjectModelFactory>(mConfig));
  ReportObjectRegistry::Register(
      QString::fromLatin1(ErrorReportClass),
      [&err, failures = mFailures] { return std::make_shared<CliErrorReport>(err, failures); });
}

CliSession::~CliSession() {
  ReportObjectRegistry::Unregister(QString::fromLatin1(ErrorReportClass));
  InstallModel(std::move(mPreviousModel));
  Services::Install(std::move(mPreviousMessages));
}

std::shared_ptr<NamespaceDefs> CliSession::CppDefinitions() const {
  return mConfig->NamespaceDefs(kCppDefinitions);
}

}  // namespace sv
