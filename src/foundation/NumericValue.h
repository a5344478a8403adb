#pragma once

#include <QString>

namespace sv {

// The number that a text starts with, as the classic Val reads it: leading blanks skipped, an
// optional sign, digits with an optional fraction and exponent. Text that starts with no number
// gives 0; "12px" gives 12.
double NumericValue(const QString& text);

}  // namespace sv
