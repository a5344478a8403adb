#include "project/doxygen/DoxygenXmlFile.h"

#include <QFile>
#include <algorithm>

#include "model/Error.h"

namespace sv {
namespace {

// Names and values are all we read; entities must be decoded, line ends need not be.
constexpr unsigned kParseOptions = pugi::parse_minimal | pugi::parse_escapes;

struct Position {
  qint64 line = 1;
  qint64 column = 1;
};

// Line and column (in characters) of a byte offset in the untouched file.
Position PositionOf(const QByteArray& bytes, std::ptrdiff_t offset) {
  const auto end = bytes.cbegin() + std::clamp<std::ptrdiff_t>(offset, 0, bytes.size());
  Position at;
  auto lineStart = bytes.cbegin();
  for (auto it = bytes.cbegin(); it != end; ++it) {
    if (*it != '\n') continue;
    ++at.line;
    lineStart = it + 1;
  }
  // UTF-8 continuation bytes belong to the character before them.
  at.column = 1 + std::count_if(lineStart, end, [](char c) { return (c & 0xC0) != 0x80; });
  return at;
}

}  // namespace

DoxygenXmlFile::DoxygenXmlFile(const QString& path, std::string_view rootName) : mPath(path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    Raise(file.exists() ? ErrorNumber::PathNotFound : ErrorNumber::FileNotFound,
          QStringLiteral("Cannot open the Doxygen XML file %1: %2").arg(path, file.errorString()));
  mSize = file.size();
  mBuffer = std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(mSize));
  if (file.read(mBuffer.get(), mSize) != mSize)
    Raise(ErrorNumber::FileNotFound,
          QStringLiteral("Cannot read the Doxygen XML file %1: %2").arg(path, file.errorString()));

  mDocument = std::make_unique<pugi::xml_document>();
  const pugi::xml_parse_result result = mDocument->load_buffer_inplace(
      mBuffer.get(), static_cast<std::size_t>(mSize), kParseOptions, pugi::encoding_utf8);
  if (!result) FailAtOffset(result.offset, QString::fromUtf8(result.description()));
  const pugi::xml_node root = Root();
  if (!root) FailAtOffset(mSize, QStringLiteral("The file has no document element"));
  if (View(root.name()) != rootName)
    Fail(root, QStringLiteral("Expected the element <%1> but found <%2>")
                   .arg(QString::fromUtf8(rootName.data(), static_cast<qsizetype>(rootName.size())),
                        QString::fromUtf8(root.name())));
}

void DoxygenXmlFile::Fail(pugi::xml_node at, const QString& problem) const {
  // A node's name points into the buffer, which parsing only ever shortens behind the cursor.
  const char* name = at.name();
  FailAtOffset(name && *name ? name - mBuffer.get() - 1 : 0, problem);
}

void DoxygenXmlFile::FailAtOffset(std::ptrdiff_t offset, const QString& problem) const {
  // Parsing in place rewrote the buffer, so count lines in the file as it is on disk.
  QFile file(mPath);
  const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  const Position at = PositionOf(bytes, offset);
  Raise(ErrorNumber::BadFileFormat, QStringLiteral("%1: line %2, column %3: %4")
                                        .arg(mPath)
                                        .arg(at.line)
                                        .arg(at.column)
                                        .arg(problem));
}

}  // namespace sv
