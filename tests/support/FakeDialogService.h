#pragma once

#include "foundation/DialogService.h"

#include <QString>
#include <QStringList>
#include <deque>
#include <functional>

namespace sv::test {

// Shows a form by calling the next scripted callback with it, which plays the user (fills
// fields, presses OK or Cancel). With the script used up the form is left as it is.
// Shown() lists the class name of every form shown.
class FakeDialogService : public IDialogService {
 public:
  using Script = std::function<void(QObject* form)>;

  void ShowModal(QObject* form, QObject* owner) override;
  void Then(Script script) { mScripts.push_back(std::move(script)); }
  const QStringList& Shown() const { return mShown; }

 private:
  std::deque<Script> mScripts;
  QStringList mShown;
};

}  // namespace sv::test
