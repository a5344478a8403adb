#pragma once

#include <QString>
#include <map>
#include <pugixml.hpp>

#include "project/file/ForeignXml.h"

namespace sv {

class ProjectModel;
class TaggedComments;
class XmlSource;

// The <Item> elements that hold the comments of items, shared by the project file and the
// content files. An item is named by its qualified name; each comment keeps its Id, tag, text,
// status, qualifier, XML type and hidden flag. Deleted comments are not written.
class CommentXml {
 public:
  // Appends an <Item> with the item's comments to parent; nothing when all are deleted.
  static void WriteItem(pugi::xml_node parent, const QString& qualifiedName,
                        const TaggedComments& comments,
                        const std::map<QString, QByteArray>& foreign, const QString& pathPrefix);
  // Reads the <Item> children of parent into the project's comment store.
  static void ReadItems(const XmlSource& source, const pugi::xml_node& parent,
                        ProjectModel& project, ForeignXml::Collector& foreign,
                        const QString& pathPrefix);
};

}  // namespace sv
