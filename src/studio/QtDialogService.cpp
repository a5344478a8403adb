#include "studio/QtDialogService.h"

#include <QMetaObject>

#include "model/Error.h"
#include "studio/RenderedWidgets.h"

namespace sv {

void QtDialogService::Register(const QString& className, Factory factory) {
  mFactories.insert(className, std::move(factory));
}

const QtDialogService::Factory* QtDialogService::factoryFor(const QObject* form) const {
  if (!form) return nullptr;
  for (const QMetaObject* meta = form->metaObject(); meta; meta = meta->superClass()) {
    const auto found = mFactories.constFind(QString::fromLatin1(meta->className()));
    if (found != mFactories.constEnd()) return &*found;
  }
  return nullptr;
}

void QtDialogService::ShowModal(QObject* form, QObject* owner) {
  const Factory* factory = factoryFor(form);
  if (!factory)
    Raise(ErrorNumber::NotSupported,
          QStringLiteral("No window shows forms of class ") +
              QString::fromLatin1(form ? form->metaObject()->className() : "(none)"));
  const std::unique_ptr<QDialog> dialog = (*factory)(form, RenderedWidgets::WidgetFor(owner));
  dialog->setWindowModality(Qt::ApplicationModal);
  dialog->exec();
}

}  // namespace sv
