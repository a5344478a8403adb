#pragma once

#include "foundation/TipService.h"

#include <QSet>
#include <QStringList>

namespace sv::test {

// Records tips shown and hidden; a tip counts as seen once shown, or when marked seen.
class FakeTipService : public ITipService {
 public:
  void ShowTip(const QString& name, QObject* near) override;
  void HideTip() override { ++mHidden; }
  bool TipSeen(const QString& name) const override { return mSeen.contains(name); }

  void MarkSeen(const QString& name) { mSeen.insert(name); }
  const QStringList& Shown() const { return mShown; }
  int HideCount() const { return mHidden; }

 private:
  QStringList mShown;
  QSet<QString> mSeen;
  int mHidden = 0;
};

}  // namespace sv::test
