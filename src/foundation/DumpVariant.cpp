#include "foundation/DumpVariant.h"

namespace sv {

DumpVariant DumpVariant::Object(const QString& typeName) {
  DumpVariant value(Kind::Object);
  value.mText = typeName;
  return value;
}

DumpVariant DumpVariant::Udt(const QString& name) {
  DumpVariant value(Kind::Udt);
  value.mText = name;
  return value;
}

DumpVariant DumpVariant::Collection(const QString& typeName, std::vector<DumpVariant> items) {
  DumpVariant value(Kind::Collection);
  value.mText = typeName;
  value.mElements = std::make_shared<const Elements>(Elements{{}, std::move(items)});
  return value;
}

DumpVariant DumpVariant::Array(std::vector<std::optional<Bounds>> dimensions,
                               std::vector<DumpVariant> elements) {
  DumpVariant value(Kind::Array);
  value.mElements =
      std::make_shared<const Elements>(Elements{std::move(dimensions), std::move(elements)});
  return value;
}

DumpVariant DumpVariant::List(std::vector<DumpVariant> elements, long lowerBound) {
  const Bounds bounds{lowerBound, lowerBound + static_cast<long>(elements.size()) - 1};
  return Array({bounds}, std::move(elements));
}

DumpVariant DumpVariant::List(const QStringList& texts, long lowerBound) {
  return List(std::vector<DumpVariant>(texts.begin(), texts.end()), lowerBound);
}

DumpVariant DumpVariant::FormatError(long number) {
  DumpVariant value(Kind::FormatError);
  value.mInteger = number;
  return value;
}

DumpVariant DumpVariant::Deferred(std::function<DumpVariant()> read) {
  DumpVariant value(Kind::Deferred);
  value.mRead = std::move(read);
  return value;
}

const std::vector<DumpVariant>& DumpVariant::Items() const {
  static const std::vector<DumpVariant> none;
  return mElements ? mElements->items : none;
}

const std::vector<std::optional<DumpVariant::Bounds>>& DumpVariant::Dimensions() const {
  static const std::vector<std::optional<Bounds>> none;
  return mElements ? mElements->dimensions : none;
}

DumpVariant DumpVariant::Read() const {
  return mRead ? mRead() : DumpVariant();
}

}  // namespace sv
