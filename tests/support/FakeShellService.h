#pragma once

#include "foundation/ShellService.h"

#include <QStringList>

namespace sv::test {

// Records every URL or file opened and answers a fixed result.
class FakeShellService : public IShellService {
 public:
  bool Open(const QString& urlOrFile) override;
  void SetResult(bool result) { mResult = result; }
  const QStringList& Opened() const { return mOpened; }

 private:
  QStringList mOpened;
  bool mResult = true;
};

}  // namespace sv::test
