#include "FakeDialogService.h"

#include <QObject>

namespace sv::test {

void FakeDialogService::ShowModal(QObject* form, QObject*) {
  mShown << (form ? QString::fromLatin1(form->metaObject()->className()) : QStringLiteral("null"));
  if (mScripts.empty()) return;
  Script script = std::move(mScripts.front());
  mScripts.pop_front();
  script(form);
}

}  // namespace sv::test
