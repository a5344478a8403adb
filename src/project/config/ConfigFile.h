#pragma once

#include <QString>
#include <initializer_list>
#include <string_view>

#include "project/file/XmlSource.h"

namespace sv {

// One configuration file: parsed, its root and version checked, and every element checked for
// names it does not know, so that a misspelt attribute is an error rather than a silent default.
// Failures raise BadFileFormat naming the file, line and column.
class ConfigFile : public XmlSource {
 public:
  // The format major version this build reads.
  static constexpr int kMajorVersion = 1;

  ConfigFile(const QString& path, const char* rootName);

  // Fails on an attribute not in attributes, a child element not in children, or text.
  void CheckNode(const pugi::xml_node& node, std::initializer_list<std::string_view> attributes,
                 std::initializer_list<std::string_view> children = {}) const;
  // An attribute's text; empty when it is missing.
  static QString Text(const pugi::xml_node& node, const char* name);
  // An attribute that may hold only letters of allowed.
  QString Letters(const pugi::xml_node& node, const char* name, QStringView allowed) const;
};

}  // namespace sv
