#pragma once

#include <QString>

namespace sv {

// Message boxes. Flags and answers are the numbers of foundation/MessageBox.h.
class IMessageService {
 public:
  virtual ~IMessageService();
  virtual int ShowMessage(const QString& text, int flags, const QString& title) = 0;
};

}  // namespace sv
