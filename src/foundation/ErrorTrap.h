#pragma once

#include "foundation/DumpValue.h"
#include "foundation/DumpVariant.h"
#include "foundation/Dumpable.h"
#include "foundation/NamedModule.h"
#include "foundation/TrapFrame.h"
#include "foundation/TrapLocal.h"
#include "model/Error.h"

#include <QString>
#include <functional>
#include <initializer_list>
#include <source_location>
#include <type_traits>
#include <vector>

namespace sv {

// The error fields of the failure in hand, written as soon as a trap catches it.
struct CapturedError {
  long number = 0;
  QString description;
  long line = 0;
  QString source;
};

// Stores the fields of the failure. Ignored while a failure is being reported, so that a failure
// inside the report cannot overwrite the one being reported.
void CaptureError(const Error& error);
// A failure from outside the system's error type: the line is that of the trap's call site.
void CaptureError(const std::exception& error, std::source_location site);
const CapturedError& LastError();

// Hands a failure to the report object "CorvaError.Error", or shows the fallback message box
// when there is none. locals, members and params are dumps or "{None}". Never throws, and does
// nothing when called while another failure is being reported.
void ReportError(const QString& module, const QString& procedure, long line, long number,
                 const QString& description, const QString& locals, const QString& members,
                 const QString& params) noexcept;

// What the report object answered as Action for the last report.
QString LastReportAction();

// Contributes named values to the report's GlobalVariables after the trap's own state. The
// settings module registers mAppName and LastPath here; setting a new provider replaces it.
using GlobalVariablesProvider = std::function<std::vector<DumpArg>()>;
void SetGlobalVariablesProvider(GlobalVariablesProvider provider);

namespace detail {
// Dumps members and parameters of the failure just captured, and reports it.
void ReportTrapped(const Dumpable* self, const char* procedure,
                   std::initializer_list<DumpArg> params, const TrapFrame& frame) noexcept;
}  // namespace detail

// Runs body as a public member or event handler of self: a failure is reported with the
// procedure's name, the throw's line, the named locals (TrapLocal), self's members and params,
// and the call then answers a default-constructed result.
template <class F>
auto Trap(const Dumpable* self, const char* procedure, F&& body,
          std::initializer_list<DumpArg> params = {},
          std::source_location site = std::source_location::current()) -> std::invoke_result_t<F> {
  using Result = std::invoke_result_t<F>;
  static_assert(std::is_void_v<Result> || std::is_default_constructible_v<Result>,
                "a trapped body answers void or a default-constructible value");
  TrapFrame frame;
  try {
    return std::invoke(std::forward<F>(body));
  } catch (const Error& error) {
    CaptureError(error);
  } catch (const std::exception& error) {
    CaptureError(error, site);
  }
  detail::ReportTrapped(self, procedure, params, frame);
  if constexpr (!std::is_void_v<Result>) return Result{};
}

}  // namespace sv
