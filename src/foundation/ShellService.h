#pragma once

#include <QString>

namespace sv {

// The shell's "open" verb on a URL or a file.
class IShellService {
 public:
  virtual ~IShellService();
  virtual bool Open(const QString& urlOrFile) = 0;
};

}  // namespace sv
