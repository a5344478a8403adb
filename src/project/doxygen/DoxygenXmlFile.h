#pragma once

#include <QString>
#include <memory>
#include <pugixml.hpp>
#include <string_view>

namespace sv {

// One Doxygen XML file read whole into memory and parsed in place, so that every name and
// value the tree hands out points into our own buffer: no string is copied while parsing.
// The buffer outlives the tree (DropTree), which lets a reader keep string views after it has
// walked the tree once. Failures throw sv::Error naming the file, line and column.
class DoxygenXmlFile {
 public:
  // Reads and parses the file; its document element must be named rootName.
  DoxygenXmlFile(const QString& path, std::string_view rootName);

  DoxygenXmlFile(const DoxygenXmlFile&) = delete;
  DoxygenXmlFile& operator=(const DoxygenXmlFile&) = delete;

  const QString& Path() const { return mPath; }
  qint64 Size() const { return mSize; }
  pugi::xml_node Root() const { return mDocument->document_element(); }

  // Frees the parsed tree; string views taken from it stay valid.
  void DropTree() { mDocument.reset(); }

  // Throws BadFileFormat for a problem found at a node of this file.
  [[noreturn]] void Fail(pugi::xml_node at, const QString& problem) const;

 private:
  [[noreturn]] void FailAtOffset(std::ptrdiff_t offset, const QString& problem) const;

  QString mPath;
  qint64 mSize = 0;
  std::unique_ptr<char[]> mBuffer;
  std::unique_ptr<pugi::xml_document> mDocument;
};

// The text of a pugixml string as a view; empty for a null pointer.
inline std::string_view View(const char* text) {
  return text ? std::string_view(text) : std::string_view();
}

}  // namespace sv
