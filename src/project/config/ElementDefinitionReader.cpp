#include "project/config/ElementDefinitionReader.h"

#include <QStringList>

#include "project/config/AttributeDefinition.h"
#include "project/config/ConfigFile.h"
#include "project/config/ElementDefinition.h"
#include "project/config/NamespaceNames.h"

namespace sv {

namespace {

// The type words the element builder knows, and where a list takes its entries from.
const QStringList kTypes{"text", "list", "date", "color", "number", "boolean", "file"};
const QStringList kListTypes{"taggedcommentdefs", "variables",  "values",         "scraps",
                             "phrases",           "namespaces", "childnamespaces"};

QString OneOf(const ConfigFile& file, const pugi::xml_node& node, const char* name,
              const QStringList& words) {
  const QString value = ConfigFile::Text(node, name);
  if (!words.contains(value.toLower()))
    file.Fail(node, QStringLiteral("The attribute %1 must be one of %2, not \"%3\".")
                        .arg(QLatin1String(name), words.join(QStringLiteral(", ")), value));
  return value;
}

std::shared_ptr<AttributeDefinition> ReadAttribute(const ConfigFile& file,
                                                   const pugi::xml_node& node) {
  file.CheckNode(node,
                 {"name", "type", "listType", "values", "default", "required", "description"});
  auto attribute = std::make_shared<AttributeDefinition>(file.Required(node, "name"));
  attribute->setDescription(ConfigFile::Text(node, "description"));
  attribute->setType(node.attribute("type") ? OneOf(file, node, "type", kTypes)
                                            : QStringLiteral("text"));
  attribute->setDefaultValue(ConfigFile::Text(node, "default"));
  attribute->setRequired(file.Bool(node, "required", false));
  const bool isList = attribute->Type().compare(QLatin1String("list"), Qt::CaseInsensitive) == 0;
  if (isList) attribute->setListType(OneOf(file, node, "listType", kListTypes));
  if (!isList && node.attribute("listType"))
    file.Fail(node, QStringLiteral("Only an attribute of type list has a listType."));
  attribute->setValues(ConfigFile::Text(node, "values"));
  const bool ownValues =
      attribute->ListType().compare(QLatin1String("values"), Qt::CaseInsensitive) == 0;
  if (ownValues && attribute->Values().isEmpty())
    file.Fail(node, QStringLiteral("A list of listType values needs its values."));
  if (!ownValues && !attribute->Values().isEmpty())
    file.Fail(node, QStringLiteral("Only a list of listType values has values."));
  return attribute;
}

std::shared_ptr<ElementDefinition> ReadElement(const ConfigFile& file, const pugi::xml_node& node,
                                               const NamespaceNames& kinds) {
  file.CheckNode(node, {"name", "category", "namespaces", "excludedFromPage", "description"},
                 {"attribute"});
  auto element = std::make_shared<ElementDefinition>(file.Required(node, "name"));
  element->setDescription(ConfigFile::Text(node, "description"));
  element->setCategory(ConfigFile::Text(node, "category"));
  element->setNameSpaces(kinds.List(file, node, "namespaces", QStringLiteral("{blank}")));
  element->setExcludedFromPage(file.Bool(node, "excludedFromPage", false));
  for (const pugi::xml_node& child : node.children("attribute")) {
    auto attribute = ReadAttribute(file, child);
    if (element->Attributes()->Contains(attribute->Name()))
      file.Fail(child, QStringLiteral("The element %1 has two attributes named %2.")
                           .arg(element->Name(), attribute->Name()));
    element->AddAttribute(std::move(attribute));
  }
  return element;
}

}  // namespace

std::shared_ptr<ElementDefinitionReader::ElementCollection> ElementDefinitionReader::Read(
    const QString& path, const NamespaceNames& kinds) {
  const ConfigFile file(path, "elements");
  const pugi::xml_node root = file.Root();
  file.CheckNode(root, {"version"}, {"element"});
  auto elements = std::make_shared<ElementCollection>();
  for (const pugi::xml_node& node : root.children("element")) {
    auto element = ReadElement(file, node, kinds);
    if (elements->Contains(element->Name()))
      file.Fail(node, QStringLiteral("The element %1 is defined twice.").arg(element->Name()));
    const QString name = element->Name();
    elements->Add(std::move(element), name);
  }
  return elements;
}

}  // namespace sv
