#include "project/file/ForeignXml.h"

#include <algorithm>
#include <cstring>
#include <sstream>

namespace sv {

namespace {

bool named(const char* name, std::initializer_list<const char*> names) {
  return std::any_of(names.begin(), names.end(),
                     [name](const char* known) { return std::strcmp(name, known) == 0; });
}

}  // namespace

ForeignXml::Collector::~Collector() {
  for (const auto& [path, document] : mCarriers) {
    std::ostringstream out;
    document->save(out, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    mStore[path] = QByteArray::fromStdString(out.str());
  }
}

pugi::xml_node ForeignXml::Collector::carrier(const QString& path) {
  auto& document = mCarriers[path];
  if (!document) {
    document = std::make_unique<pugi::xml_document>();
    document->append_child("foreign");
  }
  return document->document_element();
}

void ForeignXml::Collector::Scan(const pugi::xml_node& node, const QString& path,
                                 std::initializer_list<const char*> known,
                                 std::initializer_list<const char*> knownChildren) {
  for (const pugi::xml_attribute& attribute : node.attributes()) {
    if (named(attribute.name(), known)) continue;
    carrier(path).append_copy(attribute);
  }
  for (const pugi::xml_node& child : node.children()) {
    if (child.type() != pugi::node_element || named(child.name(), knownChildren)) continue;
    KeepElement(path, child);
  }
}

void ForeignXml::Collector::KeepElement(const QString& path, const pugi::xml_node& element) {
  carrier(path).append_copy(element);
}

void ForeignXml::Restore(const std::map<QString, QByteArray>& store, const QString& path,
                         pugi::xml_node node) {
  const auto found = store.find(path);
  if (found == store.end()) return;
  pugi::xml_document fragment;
  const QByteArray& text = found->second;
  if (!fragment.load_buffer(text.constData(), static_cast<std::size_t>(text.size()),
                            pugi::parse_default & ~pugi::parse_eol, pugi::encoding_utf8))
    return;
  const pugi::xml_node carrier = fragment.document_element();
  for (const pugi::xml_attribute& attribute : carrier.attributes())
    if (!node.attribute(attribute.name())) node.append_copy(attribute);
  for (const pugi::xml_node& child : carrier.children()) node.append_copy(child);
}

}  // namespace sv
