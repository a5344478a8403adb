#include "project/file/XmlSource.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <algorithm>
#include <cstring>

#include "model/Error.h"

namespace sv {

namespace {
constexpr unsigned kParseOptions =
    (pugi::parse_default & ~pugi::parse_eol) | pugi::parse_ws_pcdata_single;
}

XmlSource::XmlSource(const QString& path) : mPath(QDir::toNativeSeparators(path)) {
  QFile file(path);
  if (!file.exists())
    Raise(ErrorNumber::FileNotFound, QStringLiteral("The file %1 does not exist.").arg(mPath));
  if (!file.open(QIODevice::ReadOnly))
    Raise(ErrorNumber::PathNotFound,
          QStringLiteral("The file %1 cannot be read: %2").arg(mPath, file.errorString()));
  mText = file.readAll();
  const pugi::xml_parse_result result =
      mDocument.load_buffer(mText.constData(), static_cast<std::size_t>(mText.size()),
                            kParseOptions, pugi::encoding_utf8);
  if (!result) FailAt(result.offset, QString::fromUtf8(result.description()));
}

void XmlSource::Fail(const pugi::xml_node& node, const QString& message) const {
  // pugixml places an element at its name; the author looks for its "<".
  const std::ptrdiff_t offset = node.offset_debug();
  FailAt(node.type() == pugi::node_element && offset > 0 ? offset - 1 : offset, message);
}

void XmlSource::FailAt(std::ptrdiff_t offset, const QString& message) const {
  const auto [line, column] = LineAndColumn(mText, offset);
  Raise(ErrorNumber::BadFileFormat,
        QStringLiteral("%1:%2:%3: %4").arg(mPath).arg(line).arg(column).arg(message));
}

void XmlSource::CheckRoot(const char* rootName, int supportedMajor) const {
  const pugi::xml_node root = Root();
  if (!root || std::strcmp(root.name(), rootName) != 0)
    Fail(root, QStringLiteral("The root element must be <%1>.").arg(QLatin1String(rootName)));
  const QString version = QString::fromUtf8(root.attribute("version").as_string());
  const QStringList parts = version.split(QLatin1Char('.'));
  bool majorOk = false;
  bool minorOk = false;
  const int major = parts.value(0).toInt(&majorOk);
  if (parts.size() == 2) parts.at(1).toInt(&minorOk);
  if (!majorOk || !minorOk)
    Fail(root,
         QStringLiteral("The version attribute must be \"major.minor\", not \"%1\".").arg(version));
  if (major > supportedMajor)
    Fail(root, QStringLiteral("The file was written by a newer version of Scrivara (format %1); "
                              "this version reads format %2.x only.")
                   .arg(version)
                   .arg(supportedMajor));
}

bool XmlSource::Bool(const pugi::xml_node& node, const char* name, bool fallback) const {
  const pugi::xml_attribute attribute = node.attribute(name);
  if (!attribute) return fallback;
  const QByteArray text(attribute.as_string());
  if (text == "true" || text == "1") return true;
  if (text == "false" || text == "0") return false;
  Fail(node, QStringLiteral("The attribute %1 must be true or false, not \"%2\".")
                 .arg(QLatin1String(name), QString::fromUtf8(text)));
}

long XmlSource::Long(const pugi::xml_node& node, const char* name, long fallback) const {
  const pugi::xml_attribute attribute = node.attribute(name);
  if (!attribute) return fallback;
  const QString text = QString::fromUtf8(attribute.as_string());
  bool ok = false;
  const long value = text.toLong(&ok, 0);
  if (!ok)
    Fail(node, QStringLiteral("The attribute %1 must be a number, not \"%2\".")
                   .arg(QLatin1String(name), text));
  return value;
}

QString XmlSource::Required(const pugi::xml_node& node, const char* name) const {
  const QString value = QString::fromUtf8(node.attribute(name).as_string());
  if (value.isEmpty())
    Fail(node, QStringLiteral("The element <%1> needs a %2 attribute.")
                   .arg(QString::fromUtf8(node.name()), QLatin1String(name)));
  return value;
}

std::pair<int, int> XmlSource::LineAndColumn(const QByteArray& text, std::ptrdiff_t offset) {
  const qsizetype end = std::clamp<qsizetype>(offset, 0, text.size());
  const QByteArrayView before(text.constData(), end);
  const int line = static_cast<int>(before.count('\n')) + 1;
  const qsizetype lineStart = before.lastIndexOf('\n') + 1;
  const int column = static_cast<int>(QString::fromUtf8(before.sliced(lineStart)).size()) + 1;
  return {line, column};
}

}  // namespace sv
