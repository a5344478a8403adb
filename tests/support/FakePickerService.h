#pragma once

#include "foundation/PickerService.h"

#include <QStringList>
#include <deque>

namespace sv::test {

// Answers pickers from a script of paths (an empty path is a cancel) and records each request
// as "Folder|title|initial", "Open|title|filter|initial" or "Save|title|filter|initial".
class FakePickerService : public IPickerService {
 public:
  QString PickFolder(const QString& title, const QString& initialDir, QObject* owner) override;
  QString PickOpenFile(const QString& title, const QString& filter, const QString& initialPath,
                       QObject* owner) override;
  QString PickSaveFile(const QString& title, const QString& filter, const QString& initialPath,
                       QObject* owner) override;

  void Script(const QString& answer) { mScript.push_back(answer); }
  const QStringList& Requests() const { return mRequests; }

 private:
  QString Next(const QString& request);

  std::deque<QString> mScript;
  QStringList mRequests;
};

}  // namespace sv::test
