#pragma once

#include "foundation/MessageService.h"

namespace sv {

// Message boxes for a process without a window: writes the box to stderr and answers its
// default button.
class ConsoleMessageService : public IMessageService {
 public:
  int ShowMessage(const QString& text, int flags, const QString& title) override;
};

}  // namespace sv
