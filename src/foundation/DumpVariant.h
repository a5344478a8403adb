#pragma once

#include <QString>
#include <QStringList>
#include <concepts>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace sv {

// Any value as the error report shows it: plain values, the absence of one, objects by their
// type name, collections and arrays of up to three dimensions with their elements.
class DumpVariant {
 public:
  enum class Kind {
    Empty,
    Null,
    Nothing,
    Text,
    Integer,
    Real,
    Boolean,
    Collection,
    Object,
    DataObject,
    Udt,
    Array,
    FormatError,
    UdtParameter,
    ExternalUdtParameter,
    Deferred,
  };

  struct Bounds {
    long lower = 0;
    long upper = -1;
    long Count() const { return upper < lower ? 0 : upper - lower + 1; }
  };

  DumpVariant() = default;
  DumpVariant(const QString& text) : mKind(Kind::Text), mText(text) {}
  DumpVariant(const char* text) : mKind(Kind::Text), mText(QString::fromUtf8(text)) {}
  DumpVariant(bool value) : mKind(Kind::Boolean), mInteger(value ? 1 : 0) {}
  template <std::integral T>
  requires(!std::same_as<T, bool>) DumpVariant(T value)
      : mKind(Kind::Integer), mInteger(static_cast<long long>(value)) {}
  template <std::floating_point T>
  DumpVariant(T value) : mKind(Kind::Real), mReal(static_cast<double>(value)) {}
  // An absent optional value dumps as Null.
  template <class T>
  DumpVariant(const std::optional<T>& value) : DumpVariant(value ? DumpVariant(*value) : Null()) {}

  static DumpVariant Null() { return DumpVariant(Kind::Null); }
  static DumpVariant Nothing() { return DumpVariant(Kind::Nothing); }
  static DumpVariant DataObject() { return DumpVariant(Kind::DataObject); }
  static DumpVariant Object(const QString& typeName);
  // An object reference: Nothing when null, else the object by its type name.
  template <class T>
  static DumpVariant Object(const std::shared_ptr<T>& object, const QString& typeName) {
    return object ? Object(typeName) : Nothing();
  }
  static DumpVariant Udt(const QString& name);
  static DumpVariant Collection(const QString& typeName, std::vector<DumpVariant> items);
  // An array of one to three (or more, which the dump truncates) dimensions. A dimension
  // without bounds is one that was never dimensioned; no dimensions at all is an array that
  // was never dimensioned. Elements are in index order, the last index running fastest.
  static DumpVariant Array(std::vector<std::optional<Bounds>> dimensions,
                           std::vector<DumpVariant> elements);
  // A one-dimensional array from lowerBound.
  static DumpVariant List(std::vector<DumpVariant> elements, long lowerBound = 0);
  static DumpVariant List(const QStringList& texts, long lowerBound = 0);
  static DumpVariant FormatError(long number);
  // A parameter of a structure type, which the trap cannot read.
  static DumpVariant UdtParameter() { return DumpVariant(Kind::UdtParameter); }
  static DumpVariant ExternalUdtParameter() { return DumpVariant(Kind::ExternalUdtParameter); }
  // A value read only when dumped; a failure to read it dumps as a formatting error.
  static DumpVariant Deferred(std::function<DumpVariant()> read);

  Kind GetKind() const { return mKind; }
  // The string, or the type name of an object, collection or structure.
  const QString& Text() const { return mText; }
  long long Integer() const { return mInteger; }
  double Real() const { return mReal; }
  const std::vector<DumpVariant>& Items() const;
  const std::vector<std::optional<Bounds>>& Dimensions() const;
  // The value a deferred one reads; may throw.
  DumpVariant Read() const;

 private:
  explicit DumpVariant(Kind kind) : mKind(kind) {}

  struct Elements {
    std::vector<std::optional<Bounds>> dimensions;
    std::vector<DumpVariant> items;
  };

  Kind mKind = Kind::Empty;
  QString mText;
  long long mInteger = 0;
  double mReal = 0;
  std::shared_ptr<const Elements> mElements;
  std::function<DumpVariant()> mRead;
};

// One named value of a dump: a parameter, a local, a member or a global.
struct DumpArg {
  QString name;
  DumpVariant value;
};

}  // namespace sv
