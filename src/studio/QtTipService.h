#pragma once

#include <QHash>
#include <QPointer>
#include <QSet>
#include <QString>

#include "foundation/TipService.h"
#include "studio/TipPopupRenderer.h"
#include "widgets/frmTipPopup.h"

namespace sv {

// Named tips in a small popup below the window they are about. A tip with no text is shown as
// nothing and stays unseen. Seen tips are remembered for the session; the host may seed the
// set from what earlier sessions saved.
class QtTipService : public ITipService {
 public:
  QtTipService() = default;
  ~QtTipService() override;
  QtTipService(const QtTipService&) = delete;
  QtTipService& operator=(const QtTipService&) = delete;

  void SetTipText(const QString& name, const QString& text) { mTexts.insert(name, text); }
  void MarkSeen(const QString& name) { mSeen.insert(name); }
  const QSet<QString>& Seen() const { return mSeen; }

  void ShowTip(const QString& name, QObject* near) override;
  void HideTip() override;
  bool TipSeen(const QString& name) const override { return mSeen.contains(name); }

  // The popup while it is shown, else null.
  const TipPopupRenderer* Popup() const;

 private:
  QHash<QString, QString> mTexts;
  QSet<QString> mSeen;
  frmTipPopup mForm;
  QPointer<TipPopupRenderer> mPopup;
};

}  // namespace sv
