#pragma once

#include "foundation/TrapFrame.h"
#include "model/Error.h"

#include <functional>
#include <optional>
#include <type_traits>

namespace sv {

// Runs body where a failure is an expected answer (a key that may be absent) and swallows an
// Error. A void body answers whether it succeeded; any other answers its result, or nothing
// when it failed. Locals named inside body never reach an outer trap's report.
template <class F>
auto IgnoreErrors(F&& body) {
  using Result = std::remove_cvref_t<std::invoke_result_t<F>>;
  const TrapFrame frame;
  if constexpr (std::is_void_v<Result>) {
    try {
      std::invoke(std::forward<F>(body));
      return true;
    } catch (const Error&) {
      return false;
    }
  } else {
    try {
      return std::optional<Result>(std::invoke(std::forward<F>(body)));
    } catch (const Error&) {
      return std::optional<Result>();
    }
  }
}

}  // namespace sv
