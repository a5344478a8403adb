#pragma once

#include <QDialog>
#include <QHash>
#include <QString>
#include <functional>
#include <memory>

#include "foundation/DialogService.h"

namespace sv {

// Shows dialog components modally in Qt windows. A form is headless, so each form class has a
// factory that builds its window; the window drives the form and closes when the form is done.
class QtDialogService : public IDialogService {
 public:
  using Factory = std::function<std::unique_ptr<QDialog>(QObject* form, QWidget* owner)>;

  // The window for forms of this class (the name moc gives it) and of classes derived from it.
  void Register(const QString& className, Factory factory);
  bool CanShow(const QObject* form) const { return factoryFor(form) != nullptr; }
  // Raises NotSupported for a form no window is registered for.
  void ShowModal(QObject* form, QObject* owner) override;

 private:
  const Factory* factoryFor(const QObject* form) const;

  QHash<QString, Factory> mFactories;
};

}  // namespace sv
