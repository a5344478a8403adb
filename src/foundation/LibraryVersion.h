#pragma once

#include <QString>

namespace sv {

// The library's version as the error report gives it. Keep in step with the project version in
// the top CMakeLists.txt.
inline constexpr int LibraryVersionMajor = 0;
inline constexpr int LibraryVersionMinor = 1;
inline constexpr int LibraryVersionRevision = 0;

// "major.minor.revision"
inline QString LibraryVersion() {
  return QStringLiteral("%1.%2.%3")
      .arg(LibraryVersionMajor)
      .arg(LibraryVersionMinor)
      .arg(LibraryVersionRevision);
}

}  // namespace sv
