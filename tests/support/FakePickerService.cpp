#include "FakePickerService.h"

namespace sv::test {

QString FakePickerService::PickFolder(const QString& title, const QString& initialDir, QObject*) {
  return Next(QStringList{QStringLiteral("Folder"), title, initialDir}.join(u'|'));
}

QString FakePickerService::PickOpenFile(const QString& title, const QString& filter,
                                        const QString& initialPath, QObject*) {
  return Next(QStringList{QStringLiteral("Open"), title, filter, initialPath}.join(u'|'));
}

QString FakePickerService::PickSaveFile(const QString& title, const QString& filter,
                                        const QString& initialPath, QObject*) {
  return Next(QStringList{QStringLiteral("Save"), title, filter, initialPath}.join(u'|'));
}

QString FakePickerService::Next(const QString& request) {
  mRequests << request;
  if (mScript.empty()) return {};
  QString answer = mScript.front();
  mScript.pop_front();
  return answer;
}

}  // namespace sv::test
