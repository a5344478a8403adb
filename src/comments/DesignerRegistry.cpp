#include "comments/DesignerRegistry.h"

#include "comments/designers/HtmlEditDesigner.h"
#include "model/Error.h"

namespace sv {

std::shared_ptr<DesignerRegistry> DesignerRegistry::WithDefaults() {
  auto registry = std::make_shared<DesignerRegistry>();
  registry->Register(QLatin1String(HTMLEditClass),
                     [] { return std::make_shared<HtmlEditDesigner>(); });
  return registry;
}

void DesignerRegistry::Register(const QString& className, Factory factory) {
  mFactories.insert(className.toLower(), std::move(factory));
}

bool DesignerRegistry::Contains(const QString& className) const {
  return mFactories.contains(className.toLower());
}

std::shared_ptr<IContentDesigner> DesignerRegistry::Create(const QString& className) const {
  const auto it = mFactories.constFind(className.toLower());
  if (it == mFactories.constEnd())
    Raise(ErrorNumber::InvalidCall,
          QStringLiteral("There is no designer of the class \"%1\"").arg(className));
  return (*it)();
}

}  // namespace sv
