#include "foundation/MessageBox.h"

namespace sv::Mb {

std::vector<int> Buttons(int flags) {
  switch (flags & ButtonMask) {
    case OKCancel:
      return {IdOK, IdCancel};
    case AbortRetryIgnore:
      return {IdAbort, IdRetry, IdIgnore};
    case YesNoCancel:
      return {IdYes, IdNo, IdCancel};
    case YesNo:
      return {IdYes, IdNo};
    case RetryCancel:
      return {IdRetry, IdCancel};
    default:
      return {IdOK};
  }
}

int DefaultAnswer(int flags) {
  const std::vector<int> buttons = Buttons(flags);
  const auto index = static_cast<std::size_t>((flags & DefaultMask) / DefaultButton2);
  return index < buttons.size() ? buttons[index] : buttons.front();
}

}  // namespace sv::Mb
