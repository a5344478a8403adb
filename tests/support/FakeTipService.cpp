#include "FakeTipService.h"

namespace sv::test {

void FakeTipService::ShowTip(const QString& name, QObject*) {
  mShown << name;
  mSeen.insert(name);
}

}  // namespace sv::test
