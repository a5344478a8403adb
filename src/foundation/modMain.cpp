#include "foundation/modMain.h"

#include "foundation/CommonUI.h"
#include "foundation/ErrorTrap.h"
#include "foundation/NamedModule.h"
#include "foundation/Services.h"
#include "foundation/modProjectView.h"
#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "model/NamespaceProvider.h"
#include "model/SVProject.h"

#include <QObject>

namespace sv {

namespace {

const NamedModule& Module() {
  static const NamedModule module(QStringLiteral("modMain"));
  return module;
}

}  // namespace

QString GetPath(QObject* ownerForm, const QString& title, const QString& initDir) {
  return Trap(
      &Module(), "GetPath",
      [&] {
        const QString start = initDir.isEmpty() ? LastPath() : initDir;
        return Services::Picker().PickFolder(title, start, ownerForm);
      },
      {{QStringLiteral("OwnerForm"),
        ownerForm ? DumpVariant::Object(QString::fromUtf8(ownerForm->metaObject()->className()))
                  : DumpVariant::Nothing()},
       {QStringLiteral("Title"), title},
       {QStringLiteral("InitDir"), initDir}});
}

void PrepNamespaceDef(NamespaceDef& nd) {
  nd.setPrepared(true);
}

std::shared_ptr<CodeItem> GetRootItem(SVProject& project, const NamespaceDefs& namespaceDefs,
                                      const QString& moniker) {
  return Trap(
      &Module(), "GetRootItem",
      [&] {
        const std::shared_ptr<NamespaceDef> nd = namespaceDefs.Item(1);
        if (!nd) RaiseObjectRequired();
        const std::shared_ptr<NamespaceProvider> np =
            project.GetNamespaceProvider(nd->ProviderName());
        if (!np)
          Raise(ErrorNumber::ObjectRequired,
                QStringLiteral("Object required: no provider named %1").arg(nd->ProviderName()));
        return np->GetRootItem(nd, moniker);
      },
      {{QStringLiteral("Moniker"), moniker}});
}

void OutputDebugString(const QString& message) {
  (void)message;
}

void ConfigureForCommonUI(QObject* obj) {
  if (ICommonUI* hook = CommonUI()) hook->Configure(obj, true, true);
}

}  // namespace sv
