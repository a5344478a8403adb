#pragma once

#include <QString>

class QObject;

namespace sv {

// Folder and file pickers. Each answers the chosen path, or an empty string when cancelled.
// A filter is "Description|*.ext|Description|*.a;*.b".
class IPickerService {
 public:
  virtual ~IPickerService();
  virtual QString PickFolder(const QString& title, const QString& initialDir, QObject* owner) = 0;
  virtual QString PickOpenFile(const QString& title, const QString& filter,
                               const QString& initialPath, QObject* owner) = 0;
  virtual QString PickSaveFile(const QString& title, const QString& filter,
                               const QString& initialPath, QObject* owner) = 0;
};

}  // namespace sv
