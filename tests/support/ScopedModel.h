#pragma once

#include <memory>

#include "model/ModelFactory.h"

namespace sv::test {

// Installs a model factory for the life of a test and puts the one before it back.
class ScopedModel {
 public:
  explicit ScopedModel(std::shared_ptr<ModelFactory> factory)
      : mPrevious(InstallModel(std::move(factory))) {}
  ~ScopedModel() { InstallModel(std::move(mPrevious)); }

  ScopedModel(const ScopedModel&) = delete;
  ScopedModel& operator=(const ScopedModel&) = delete;

 private:
  std::shared_ptr<ModelFactory> mPrevious;
};

}  // namespace sv::test
