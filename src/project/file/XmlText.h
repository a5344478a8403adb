#pragma once

#include <QString>
#include <pugixml.hpp>

namespace sv::xml {

inline QString Attribute(const pugi::xml_node& node, const char* name) {
  return QString::fromUtf8(node.attribute(name).as_string());
}

inline QString Text(const pugi::xml_node& node) {
  return QString::fromUtf8(node.text().as_string());
}

inline void SetAttribute(pugi::xml_node node, const char* name, const QString& value) {
  node.append_attribute(name).set_value(value.toUtf8().constData());
}

inline void SetText(pugi::xml_node node, const QString& value) {
  if (!value.isEmpty()) node.text().set(value.toUtf8().constData());
}

inline QString BoolText(bool value) {
  return value ? QStringLiteral("true") : QStringLiteral("false");
}

}  // namespace sv::xml
