#pragma once

#include <QString>
#include <QStringList>
#include <ostream>

// GoogleTest prints these through ADL, so that a failed comparison shows text, not bytes.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& list, std::ostream* out) {
  *out << '{';
  for (qsizetype i = 0; i < list.size(); ++i) {
    if (i > 0) *out << ", ";
    PrintTo(list[i], out);
  }
  *out << '}';
}
