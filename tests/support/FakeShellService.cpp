#include "FakeShellService.h"

namespace sv::test {

bool FakeShellService::Open(const QString& urlOrFile) {
  mOpened << urlOrFile;
  return mResult;
}

}  // namespace sv::test
