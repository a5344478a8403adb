#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <pugixml.hpp>

namespace sv {

class ConfigFile;
class NamespaceDefs;

// The kinds that tag and element definitions may name: every key and moniker of the loaded
// definition sets, and lists given a name ("@name") in the file being read. Lists are checked
// entry by entry so that a misspelt kind is reported where it stands instead of matching nothing.
class NamespaceNames {
 public:
  void AddSet(const NamespaceDefs& defs);
  // Reads a list attribute and names it for the lists that follow; fails on a name used before.
  void AddList(const ConfigFile& file, const pugi::xml_node& node, const char* nameAttribute,
               const char* listAttribute);
  // The comma list of an attribute, each entry trimmed and known, "@name" lists expanded, each
  // kind once. extra names further entries allowed as they stand ("{blank}").
  QString List(const ConfigFile& file, const pugi::xml_node& node, const char* attribute,
               const QString& extra = {}) const;

 private:
  QSet<QString> mKinds;            // lower case
  QHash<QString, QString> mLists;  // lower-case name -> expanded list
};

}  // namespace sv
