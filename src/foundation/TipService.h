#pragma once

#include <QString>

class QObject;

namespace sv {

// Balloon tips shown once per user: TipSeen tells whether a named tip was shown before.
class ITipService {
 public:
  virtual ~ITipService();
  virtual void ShowTip(const QString& name, QObject* near) = 0;
  virtual void HideTip() = 0;
  virtual bool TipSeen(const QString& name) const = 0;
};

}  // namespace sv
