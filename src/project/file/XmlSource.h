#pragma once

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <pugixml.hpp>

namespace sv {

// A file read into a pugixml document, remembered with its bytes so that any later complaint
// about a node can name the file, line and column.
class XmlSource {
 public:
  // Reads and parses the file. Raises FileNotFound when it is missing and BadFileFormat, with
  // line and column, when it is not well-formed XML. Text is kept exactly (no line-end
  // conversion, whitespace-only text kept), since comment texts are compared as written.
  explicit XmlSource(const QString& path);

  XmlSource(const XmlSource&) = delete;
  XmlSource& operator=(const XmlSource&) = delete;

  const QString& Path() const { return mPath; }
  pugi::xml_node Root() const { return mDocument.document_element(); }

  // Raises BadFileFormat naming the file and the node's line and column.
  [[noreturn]] void Fail(const pugi::xml_node& node, const QString& message) const;
  [[noreturn]] void FailAt(std::ptrdiff_t offset, const QString& message) const;

  // The major and minor number of the root's version attribute; fails when the root is not
  // named rootName, the version is missing or malformed, or its major number is newer than
  // supportedMajor.
  void CheckRoot(const char* rootName, int supportedMajor) const;

  // Typed attribute values; a value of the wrong form fails with the node's place. A missing
  // attribute answers the fallback.
  bool Bool(const pugi::xml_node& node, const char* name, bool fallback) const;
  long Long(const pugi::xml_node& node, const char* name, long fallback) const;
  // A text attribute that must be present and not empty.
  QString Required(const pugi::xml_node& node, const char* name) const;

  // One-based line and column (in characters) of a byte offset into text.
  static std::pair<int, int> LineAndColumn(const QByteArray& text, std::ptrdiff_t offset);

 private:
  QString mPath;
  QByteArray mText;
  pugi::xml_document mDocument;
};

}  // namespace sv
