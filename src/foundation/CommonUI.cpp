#include "foundation/CommonUI.h"

namespace sv {

namespace {

std::shared_ptr<ICommonUI>& Installed() {
  static std::shared_ptr<ICommonUI> hook;
  return hook;
}

}  // namespace

std::shared_ptr<ICommonUI> SetCommonUI(std::shared_ptr<ICommonUI> hook) {
  std::swap(Installed(), hook);
  return hook;
}

ICommonUI* CommonUI() {
  return Installed().get();
}

}  // namespace sv
