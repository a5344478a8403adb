#pragma once

#include <QString>
#include <exception>
#include <source_location>
#include <string>

namespace sv {

// Run-time error numbers that callers test for.
namespace ErrorNumber {
inline constexpr long InvalidCall = 5;          // "Invalid procedure call or argument"
inline constexpr long SubscriptOutOfRange = 9;  // missing index or key
inline constexpr long TypeMismatch = 13;
inline constexpr long ObjectRequired = 424;
inline constexpr long NotSupported = 438;  // the object lacks the member
inline constexpr long DuplicateKey = 457;  // key already in a collection
inline constexpr long FileNotFound = 53;
inline constexpr long PermissionDenied = 70;  // a settings or project file that cannot be written
inline constexpr long PathNotFound = 76;
inline constexpr long BadFileFormat = 321;  // malformed project, layout or configuration file
inline constexpr long ApplicationDefined = 65535;
}  // namespace ErrorNumber

// The one exception type of the system: a number, a description and the place it was thrown.
class Error : public std::exception {
 public:
  Error(long number, QString description,
        std::source_location where = std::source_location::current())
      : mNumber(number),
        mDescription(std::move(description)),
        mWhere(where),
        mWhat(mDescription.toStdString()) {}

  long Number() const noexcept { return mNumber; }
  const QString& Description() const noexcept { return mDescription; }
  const std::source_location& Where() const noexcept { return mWhere; }
  const char* what() const noexcept override { return mWhat.c_str(); }

 private:
  long mNumber;
  QString mDescription;
  std::source_location mWhere;
  std::string mWhat;
};

[[noreturn]] inline void Raise(long number, QString description,
                               std::source_location where = std::source_location::current()) {
  throw Error(number, std::move(description), where);
}

// A member was handed, or found, nothing where it needs an object.
[[noreturn]] inline void RaiseObjectRequired(
    std::source_location where = std::source_location::current()) {
  Raise(ErrorNumber::ObjectRequired, QStringLiteral("Object required"), where);
}

}  // namespace sv
