#include "project/config/DefinitionSetReader.h"

#include "project/config/ConfigFile.h"
#include "project/core/Definition.h"
#include "project/core/DefinitionSet.h"

namespace sv {

namespace {

std::shared_ptr<Definition> ReadDefinition(const ConfigFile& file, const pugi::xml_node& node,
                                           const QString& setProvider) {
  file.CheckNode(node,
                 {"key", "moniker", "provider", "group", "image", "caption", "flags",
                  "preloadChildren", "loadChildrenOnAdd", "selectable", "canExclude",
                  "preloadChildrenInSelection", "groupedInComments", "groupedInSelection"},
                 {"child"});
  auto def = std::make_shared<Definition>(file.Required(node, "key"));
  const QString moniker = ConfigFile::Text(node, "moniker");
  def->setTypeMoniker(moniker.isEmpty() ? def->Key() : moniker);
  const QString provider = ConfigFile::Text(node, "provider");
  def->setProviderName(provider.isEmpty() ? setProvider : provider);
  if (def->ProviderName().isEmpty())
    file.Fail(
        node,
        QStringLiteral("The definition %1 names no provider, nor does its set.").arg(def->Key()));
  def->setGroupCaption(ConfigFile::Text(node, "group"));
  def->setImageName(ConfigFile::Text(node, "image"));
  def->setCaptionExpression(ConfigFile::Text(node, "caption"));
  def->setFlags(file.Letters(node, "flags", u"ftr"));
  def->setPreloadChildren(file.Bool(node, "preloadChildren", false));
  def->setLoadChildrenOnAdd(file.Bool(node, "loadChildrenOnAdd", false));
  def->setSelectable(file.Bool(node, "selectable", true));
  def->setCanExclude(file.Bool(node, "canExclude", true));
  def->setPreloadChildrenInSelection(file.Bool(node, "preloadChildrenInSelection", false));
  def->setGroupedInComments(file.Bool(node, "groupedInComments", false));
  def->setGroupedInSelection(file.Bool(node, "groupedInSelection", false));
  return def;
}

void ReadChildren(const ConfigFile& file, const pugi::xml_node& node, DefinitionSet& set,
                  Definition& def) {
  for (const pugi::xml_node& child : node.children("child")) {
    file.CheckNode(child, {"key"});
    const QString key = file.Required(child, "key");
    const auto target = set.Item(key);
    if (!target)
      file.Fail(child, QStringLiteral("The definition %1 lists the child %2, which %3 does not "
                                      "define.")
                           .arg(def.Key(), key, set.Name()));
    if (def.ChildDefs()->Item(key))
      file.Fail(child,
                QStringLiteral("The definition %1 lists the child %2 twice.").arg(def.Key(), key));
    def.AddChild(target);
  }
}

}  // namespace

std::shared_ptr<DefinitionSet> DefinitionSetReader::Read(const QString& path) {
  const ConfigFile file(path, "definitionSet");
  const pugi::xml_node root = file.Root();
  file.CheckNode(root, {"version", "name", "caption", "viewOptionFlags", "provider"},
                 {"definition"});
  auto set = std::make_shared<DefinitionSet>(file.Required(root, "name"),
                                             ConfigFile::Text(root, "caption"),
                                             file.Letters(root, "viewOptionFlags", u"pift"));
  const QString provider = ConfigFile::Text(root, "provider");
  // Every definition first, so that a child may name one defined further down.
  for (const pugi::xml_node& node : root.children("definition")) {
    auto def = ReadDefinition(file, node, provider);
    if (set->Item(def->Key()))
      file.Fail(node, QStringLiteral("The key %1 is defined twice.").arg(def->Key()));
    if (set->ItemByMoniker(def->TypeMoniker()))
      file.Fail(node, QStringLiteral("The moniker %1 is used twice.").arg(def->TypeMoniker()));
    set->Adopt(def);
  }
  if (set->Count() == 0) file.Fail(root, QStringLiteral("The set defines no kind of item."));
  for (const pugi::xml_node& node : root.children("definition")) {
    auto def = std::static_pointer_cast<Definition>(set->Item(file.Required(node, "key")));
    ReadChildren(file, node, *set, *def);
  }
  return set;
}

}  // namespace sv
