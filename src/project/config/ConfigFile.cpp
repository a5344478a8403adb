#include "project/config/ConfigFile.h"

#include <algorithm>

namespace sv {

namespace {
bool Listed(std::initializer_list<std::string_view> names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}
}  // namespace

ConfigFile::ConfigFile(const QString& path, const char* rootName) : XmlSource(path) {
  CheckRoot(rootName, kMajorVersion);
}

void ConfigFile::CheckNode(const pugi::xml_node& node,
                           std::initializer_list<std::string_view> attributes,
                           std::initializer_list<std::string_view> children) const {
  for (const pugi::xml_attribute& attribute : node.attributes()) {
    if (Listed(attributes, attribute.name())) continue;
    Fail(node, QStringLiteral("The element <%1> has no attribute %2.")
                   .arg(QString::fromUtf8(node.name()), QString::fromUtf8(attribute.name())));
  }
  for (const pugi::xml_node& child : node.children()) {
    if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) {
      if (QString::fromUtf8(child.value()).trimmed().isEmpty()) continue;
      Fail(child,
           QStringLiteral("The element <%1> holds no text.").arg(QString::fromUtf8(node.name())));
    }
    if (child.type() != pugi::node_element || Listed(children, child.name())) continue;
    Fail(child, QStringLiteral("The element <%1> cannot hold <%2>.")
                    .arg(QString::fromUtf8(node.name()), QString::fromUtf8(child.name())));
  }
}

QString ConfigFile::Text(const pugi::xml_node& node, const char* name) {
  return QString::fromUtf8(node.attribute(name).as_string());
}

QString ConfigFile::Letters(const pugi::xml_node& node, const char* name,
                            QStringView allowed) const {
  const QString value = Text(node, name);
  for (const QChar letter : value) {
    if (allowed.contains(letter)) continue;
    Fail(node, QStringLiteral("The attribute %1 may hold only the letters \"%2\", not \"%3\".")
                   .arg(QLatin1String(name), allowed.toString(), value));
  }
  return value;
}

}  // namespace sv
