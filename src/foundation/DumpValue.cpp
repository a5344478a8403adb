#include "foundation/DumpValue.h"

#include "model/Error.h"

#include <QStringList>

namespace sv {

namespace {

using Kind = DumpVariant::Kind;

constexpr int kMaxArrayDimensions = 3;
constexpr long kUnknownError = ErrorNumber::ApplicationDefined;

QString Tag(const QString& name) {
  const qsizetype blank = name.indexOf(u' ');
  return blank < 0 ? name : name.left(blank);
}

QString Element(const QString& name, const QString& text, int indent) {
  return QString(indent, u' ') + u'<' + name + u'>' + text + QStringLiteral("</") + Tag(name) +
         QStringLiteral(">\r\n");
}

// An element whose content is nested elements: the opening line, the children, the closing line.
QString Block(const QString& name, const QString& head, const QString& children, int indent) {
  const QString blanks(indent, u' ');
  return blanks + u'<' + name + u'>' + head + QStringLiteral("\r\n") + children + blanks +
         QStringLiteral("</") + Tag(name) + QStringLiteral(">\r\n");
}

QString CutAtNul(const QString& text) {
  const qsizetype nul = text.indexOf(QChar(u'\0'));
  return nul < 0 ? text : text.left(nul);
}

QString Scalar(const DumpVariant& value) {
  switch (value.GetKind()) {
    case Kind::Empty:
      return QStringLiteral("{Empty}");
    case Kind::Null:
      return QStringLiteral("{Null}");
    case Kind::Nothing:
      return QStringLiteral("{Nothing}");
    case Kind::Text:
      return CutAtNul(value.Text());
    case Kind::Integer:
      return QString::number(value.Integer());
    case Kind::Real:
      return QString::number(value.Real(), 'g', 15);
    case Kind::Boolean:
      return value.Integer() ? QStringLiteral("True") : QStringLiteral("False");
    case Kind::DataObject:
      return QStringLiteral("{DataObject}");
    case Kind::Udt:
      return QStringLiteral("{UDT - %1}").arg(value.Text());
    case Kind::UdtParameter:
      return QStringLiteral("{Can't dump UDT parameters}");
    case Kind::ExternalUdtParameter:
      return QStringLiteral("{Cannot dump external UDTs}");
    case Kind::FormatError:
      return QStringLiteral("{Error %1 formatting for output}").arg(value.Integer());
    default:
      return u'{' + value.Text() + u'}';
  }
}

QString DumpCollection(const QString& name, const DumpVariant& value, int maxDepth, int indent) {
  const QString head = u'[' + value.Text() + u']';
  if (maxDepth <= 0) return Element(name, head, indent);
  QString children;
  for (const DumpVariant& item : value.Items()) {
    children += DumpValue(Tag(name), item, maxDepth - 1, indent + 2);
  }
  return Block(name, head, children, indent);
}

// The text of an array that cannot be walked, or empty when it can.
QString ArrayProblem(const std::vector<std::optional<DumpVariant::Bounds>>& dimensions) {
  if (dimensions.empty() || !dimensions.front()) return QStringLiteral("{UnInitialised Array}");
  if (dimensions.size() > kMaxArrayDimensions) {
    return QStringLiteral("{Dump truncated at 3 dimensions}");
  }
  for (std::size_t d = 1; d < dimensions.size(); ++d) {
    if (!dimensions[d]) return QStringLiteral("{UnInitialised Array Dimension %1}").arg(d + 1);
  }
  return {};
}

QString DumpArray(const QString& name, const DumpVariant& value, int maxDepth, int indent) {
  const auto& dimensions = value.Dimensions();
  if (const QString problem = ArrayProblem(dimensions); !problem.isEmpty()) {
    return Element(name, problem, indent);
  }
  const auto& items = value.Items();
  const QString tag = Tag(name);
  QString children;
  std::vector<long> index(dimensions.size());
  std::size_t position = 0;
  // Walks the indices like an odometer, the last dimension running fastest.
  const auto walk = [&](auto& self, std::size_t d) -> void {
    if (d == dimensions.size()) {
      QStringList parts;
      for (long i : index) parts << QString::number(i);
      const DumpVariant& item = position < items.size() ? items[position] : DumpVariant();
      ++position;
      children += DumpValue(QStringLiteral("%1 Index=\"%2\"").arg(tag, parts.join(u',')), item,
                            maxDepth - 1, indent + 2);
      return;
    }
    for (index[d] = dimensions[d]->lower; index[d] <= dimensions[d]->upper; ++index[d]) {
      self(self, d + 1);
    }
  };
  walk(walk, 0);
  return Block(name, QString(), children, indent);
}

QString DumpUnguarded(const QString& name, const DumpVariant& value, int maxDepth, int indent) {
  switch (value.GetKind()) {
    case Kind::Deferred:
      return DumpValue(name, value.Read(), maxDepth, indent);
    case Kind::Collection:
      return DumpCollection(name, value, maxDepth, indent);
    case Kind::Array:
      return DumpArray(name, value, maxDepth, indent);
    default:
      return Element(name, Scalar(value), indent);
  }
}

}  // namespace

QString DumpValue(const QString& name, const DumpVariant& value, int maxDepth, int indent) {
  try {
    return DumpUnguarded(name, value, maxDepth, indent);
  } catch (const Error& error) {
    return Element(name, Scalar(DumpVariant::FormatError(error.Number())), indent);
  } catch (const std::exception&) {
    return Element(name, Scalar(DumpVariant::FormatError(kUnknownError)), indent);
  }
}

QString DumpValues(std::span<const DumpArg> values, int maxDepth, int indent) {
  QString text;
  for (const DumpArg& value : values) text += DumpValue(value.name, value.value, maxDepth, indent);
  return text;
}

QString DumpValues(std::initializer_list<DumpArg> values, int maxDepth, int indent) {
  return DumpValues(std::span<const DumpArg>(values.begin(), values.size()), maxDepth, indent);
}

}  // namespace sv
