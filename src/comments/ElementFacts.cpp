#include "comments/ElementFacts.h"

#include "model/CodeItem.h"
#include "model/NamespaceProvider.h"

namespace sv {

ElementFacts::~ElementFacts() = default;

QString ElementFacts::ParentName(const QString& qualifiedName) {
  int depth = 0;
  for (qsizetype at = qualifiedName.size() - 1; at >= 0; --at) {
    const QChar c = qualifiedName.at(at);
    if (c == QLatin1Char(')') || c == QLatin1Char(']')) ++depth;
    if (c == QLatin1Char('(') || c == QLatin1Char('[')) --depth;
    if (c == QLatin1Char('.') && depth == 0) return qualifiedName.left(at);
  }
  return {};
}

std::shared_ptr<CodeItem> ElementFacts::Parent(
    const std::shared_ptr<CodeItem>& item,
    const std::shared_ptr<NamespaceProvider>& provider) const {
  if (!item || !provider) return nullptr;
  const QString parentName = ParentName(item->QualifiedName().value_or(QString()));
  if (parentName.isEmpty()) return nullptr;
  return provider->GetItem(parentName);
}

QString ElementFacts::AssemblyFileName(const std::shared_ptr<CodeItem>&,
                                       const std::shared_ptr<NamespaceProvider>&) const {
  return {};
}

std::shared_ptr<CodeItem> ElementFacts::Member(
    const std::shared_ptr<CodeItem>& component, const QString& name,
    const std::shared_ptr<NamespaceProvider>& provider) const {
  if (!component || !provider) return nullptr;
  const auto qualifiedName = component->QualifiedName();
  if (!qualifiedName || qualifiedName->isEmpty()) return nullptr;
  return provider->GetItem(*qualifiedName + QLatin1Char('.') + name);
}

}  // namespace sv
