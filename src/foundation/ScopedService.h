#pragma once

#include "foundation/Services.h"

#include <functional>
#include <memory>

namespace sv {

// Installs a service for the lifetime of the object and then puts back the one it replaced.
class ScopedService {
 public:
  template <class S>
  explicit ScopedService(std::shared_ptr<S> service) {
    auto previous = Services::Install(std::move(service));
    mRestore = [previous] { Services::Install(previous); };
  }
  ~ScopedService() { mRestore(); }
  ScopedService(const ScopedService&) = delete;
  ScopedService& operator=(const ScopedService&) = delete;

 private:
  std::function<void()> mRestore;
};

}  // namespace sv
