#pragma once

#include <QHash>
#include <QString>
#include <functional>
#include <memory>

namespace sv {

class IContentDesigner;

// Makes designers by the class name a tag definition gives (its DesignerProgID). Class names
// compare without regard to case. The default registry knows the designers that ship with the
// product; a host may register more.
class DesignerRegistry {
 public:
  using Factory = std::function<std::shared_ptr<IContentDesigner>()>;

  // The class of the plain HTML designer.
  static constexpr const char* HTMLEditClass = "SVContentDesigners5.dsrHTMLEdit";

  // A registry that knows the designers of the product.
  static std::shared_ptr<DesignerRegistry> WithDefaults();

  // Registers or replaces a class.
  void Register(const QString& className, Factory factory);
  bool Contains(const QString& className) const;
  // A new designer; an unknown class raises InvalidCall naming it.
  std::shared_ptr<IContentDesigner> Create(const QString& className) const;

 private:
  QHash<QString, Factory> mFactories;  // by class name in lower case
};

}  // namespace sv
