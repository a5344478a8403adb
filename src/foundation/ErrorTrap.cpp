#include "foundation/ErrorTrap.h"

#include "foundation/DumpValue.h"
#include "foundation/ErrorReport.h"
#include "foundation/LibraryVersion.h"
#include "foundation/MessageBox.h"
#include "foundation/ReportObjectRegistry.h"
#include "foundation/Services.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QThread>
#include <span>

namespace sv {

namespace {

// The module file name is read into a buffer of this many characters.
constexpr qsizetype kMaxPath = 260;

// The trap's module state. One thread reports at a time, so one failure is in flight.
struct TrapState {
  CapturedError error;
  QString action;
  bool reporting = false;
  GlobalVariablesProvider globals;
};

TrapState& State() {
  thread_local TrapState state;
  return state;
}

// Marks a report in progress; a second report while one runs would recurse.
class ReportingScope {
 public:
  ReportingScope() : mFirst(!State().reporting) { State().reporting = true; }
  ~ReportingScope() {
    if (mFirst) State().reporting = false;
  }
  bool First() const { return mFirst; }

 private:
  bool mFirst;
};

QString ModuleFileName() {
  return QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath().left(kMaxPath);
}

// The trap's own state as globals. The debug client channel does not exist on this platform,
// so its fields always read as off.
std::vector<DumpArg> TrapGlobals() {
  return {
      {QStringLiteral("mThreadID"),
       static_cast<long long>(reinterpret_cast<quintptr>(QThread::currentThreadId()))},
      {QStringLiteral("mProcessID"), QCoreApplication::applicationPid()},
      {QStringLiteral("mModuleFileName"), ModuleFileName()},
      {QStringLiteral("mDebugClient"), false},
      {QStringLiteral("mCountInstances"), false},
      {QStringLiteral("mServerHandle"), 0},
      {QStringLiteral("mComponentNames"), DumpVariant::Array({}, {})},
      {QStringLiteral("mDumping"), State().reporting},
  };
}

QString Globals() {
  QString text = DumpValues(TrapGlobals());
  if (!State().globals) return text;
  try {
    return text + DumpValues(State().globals());
  } catch (const std::exception&) {
    return text;
  }
}

// Each part on its own line ending in CR LF; dumps already end in one.
QString Lines(std::initializer_list<QString> parts) {
  QString text;
  for (const QString& part : parts) {
    text += part;
    if (!part.endsWith(QStringLiteral("\r\n"))) text += QStringLiteral("\r\n");
  }
  return text;
}

QString VariablesText(const QString& locals, const QString& members, const QString& params) {
  return Lines({QStringLiteral("<Variables>"), QStringLiteral("<LocalVariables>"), locals,
                QStringLiteral("</LocalVariables>"), QStringLiteral("<ModuleVariables>"), members,
                QStringLiteral("</ModuleVariables>"), QStringLiteral("<GlobalVariables>"),
                Globals(), QStringLiteral("</GlobalVariables>"), QStringLiteral("</Variables>"),
                QStringLiteral("<Parameters>"), params, QStringLiteral("</Parameters>")});
}

QString FallbackText(const QString& module, const QString& procedure, long line, long number,
                     const QString& description) {
  return QStringLiteral(
             "%1 has encountered a problem. We are sorry for the inconvenience.\n\n"
             "Module: %2\nProcedure: %3\nLine Number: %4\n\n%5 (%6)")
      .arg(QString::fromLatin1(ErrorReportProduct), module, procedure, QString::number(line),
           description, QString::number(number));
}

std::shared_ptr<IErrorReport> CreateReportObject() {
  try {
    return ReportObjectRegistry::Create(QString::fromLatin1(ErrorReportClass));
  } catch (const std::exception&) {
    return nullptr;
  }
}

void Report(const QString& module, const QString& procedure, long line, long number,
            const QString& description, const QString& locals, const QString& members,
            const QString& params) {
  const std::shared_ptr<IErrorReport> report = CreateReportObject();
  if (!report) {
    Services::Message().ShowMessage(FallbackText(module, procedure, line, number, description),
                                    Mb::Critical, QStringLiteral("Application Error"));
    return;
  }
  report->ErrorHandler(QString::fromLatin1(ErrorReportProduct), LibraryVersion(), module, procedure,
                       line, number, description, VariablesText(locals, members, params));
  State().action = report->Action();
}

// The text of a dump that itself failed.
QString FailedDump(const std::exception& error) {
  const auto* own = dynamic_cast<const Error*>(&error);
  return QStringLiteral("{Error %1 formatting for output}")
      .arg(own ? own->Number() : ErrorNumber::ApplicationDefined);
}

QString MembersOf(const Dumpable* self) {
  if (!self) return QStringLiteral("{None}");
  try {
    const QString members = self->DumpMembers();
    return members.isEmpty() ? QStringLiteral("{None}") : members;
  } catch (const std::exception& error) {
    return FailedDump(error);
  }
}

QString ModuleOf(const Dumpable* self) {
  if (!self) return {};
  try {
    return self->ModuleName();
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace

void CaptureError(const Error& error) {
  if (State().reporting) return;
  State().error = {error.Number(), error.Description(), static_cast<long>(error.Where().line()),
                   QString::fromUtf8(error.Where().function_name())};
}

void CaptureError(const std::exception& error, std::source_location site) {
  if (State().reporting) return;
  State().error = {ErrorNumber::ApplicationDefined, QString::fromLocal8Bit(error.what()),
                   static_cast<long>(site.line()), QString::fromUtf8(site.function_name())};
}

const CapturedError& LastError() {
  return State().error;
}

QString LastReportAction() {
  return State().action;
}

void SetGlobalVariablesProvider(GlobalVariablesProvider provider) {
  State().globals = std::move(provider);
}

void ReportError(const QString& module, const QString& procedure, long line, long number,
                 const QString& description, const QString& locals, const QString& members,
                 const QString& params) noexcept {
  const ReportingScope scope;
  if (!scope.First()) return;
  try {
    Report(module, procedure, line, number, description, locals, members, params);
  } catch (const std::exception&) {
    return;
  }
}

namespace detail {

void ReportTrapped(const Dumpable* self, const char* procedure,
                   std::initializer_list<DumpArg> params, const TrapFrame& frame) noexcept {
  const ReportingScope scope;
  if (!scope.First()) return;
  try {
    const CapturedError error = State().error;
    const QString paramsText = DumpValues(params);
    Report(ModuleOf(self), QString::fromUtf8(procedure), error.line, error.number,
           error.description, frame.Locals(), MembersOf(self),
           paramsText.isEmpty() ? QStringLiteral("{None}") : paramsText);
  } catch (const std::exception&) {
    return;
  }
}

}  // namespace detail

}  // namespace sv
