#pragma once

#include "foundation/PickerService.h"

namespace sv {

// Folder and file pickers as QFileDialog, placed over the owner's window.
class QtPickerService : public IPickerService {
 public:
  QString PickFolder(const QString& title, const QString& initialDir, QObject* owner) override;
  QString PickOpenFile(const QString& title, const QString& filter, const QString& initialPath,
                       QObject* owner) override;
  QString PickSaveFile(const QString& title, const QString& filter, const QString& initialPath,
                       QObject* owner) override;

  // "Description|*.a;*.b|..." as Qt writes it: "Description (*.a *.b);;...".
  static QString ToQtFilter(const QString& filter);
};

}  // namespace sv
