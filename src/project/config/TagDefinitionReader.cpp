#include "project/config/TagDefinitionReader.h"

#include "project/config/ConfigFile.h"
#include "project/config/NamespaceNames.h"
#include "project/core/TagDefinition.h"
#include "project/core/TagDefinitionSet.h"

namespace sv {

namespace {

std::shared_ptr<TagDefinition> ReadTag(const ConfigFile& file, const pugi::xml_node& node,
                                       const NamespaceNames& kinds) {
  file.CheckNode(node, {"id", "name", "caption", "description", "group", "image", "designer",
                        "designFlag", "excludeFlags", "qualifier", "namespaces", "xmlCommentTypes",
                        "isGeneral", "descriptionFormat"});
  auto tag = std::make_shared<TagDefinition>(file.Required(node, "id"));
  tag->setName(file.Required(node, "name"));
  tag->setCaption(ConfigFile::Text(node, "caption"));
  tag->setDescription(ConfigFile::Text(node, "description"));
  tag->setGroupName(ConfigFile::Text(node, "group"));
  tag->setImageName(ConfigFile::Text(node, "image"));
  tag->setDesignerProgID(ConfigFile::Text(node, "designer"));
  tag->setDesignFlag(ConfigFile::Text(node, "designFlag"));
  tag->setExcludeFlags(ConfigFile::Text(node, "excludeFlags"));
  tag->setQualifier(ConfigFile::Text(node, "qualifier"));
  tag->setNameSpaces(kinds.List(file, node, "namespaces"));
  tag->setXMLCommentTypes(ConfigFile::Text(node, "xmlCommentTypes").remove(QLatin1Char(' ')));
  tag->setIsGeneral(file.Bool(node, "isGeneral", false));
  if (node.attribute("descriptionFormat"))
    tag->setDescriptionFormat(ConfigFile::Text(node, "descriptionFormat"));
  return tag;
}

}  // namespace

std::shared_ptr<TagDefinitionSet> TagDefinitionReader::Read(const QString& path,
                                                            NamespaceNames kinds) {
  const ConfigFile file(path, "tags");
  const pugi::xml_node root = file.Root();
  file.CheckNode(root, {"version", "defaultDesigner"}, {"kinds", "tag"});
  auto tags = std::make_shared<TagDefinitionSet>();
  tags->setDefaultDesignerProgID(ConfigFile::Text(root, "defaultDesigner"));
  for (const pugi::xml_node& node : root.children()) {
    if (node.type() != pugi::node_element) continue;
    if (QByteArrayView(node.name()) == "kinds") {
      file.CheckNode(node, {"name", "namespaces"});
      kinds.AddList(file, node, "name", "namespaces");
      continue;
    }
    auto tag = ReadTag(file, node, kinds);
    if (tags->Item(tag->TagIdentifier()))
      file.Fail(node, QStringLiteral("The tag %1 is defined twice.").arg(tag->TagIdentifier()));
    tags->Add(std::move(tag));
  }
  return tags;
}

}  // namespace sv
