#pragma once

#include <QUrl>

#include "foundation/ShellService.h"

namespace sv {

// The shell's "open" through the desktop's handlers.
class QtShellService : public IShellService {
 public:
  bool Open(const QString& urlOrFile) override;

  // A text with a scheme of two or more letters is a URL; anything else is a file path, made
  // absolute. "C:\x" therefore stays a path.
  static QUrl ToUrl(const QString& urlOrFile);
};

}  // namespace sv
