#pragma once

#include "geometry/Point.h"

namespace geometry {

/// Units a length can be given in.
enum class Unit {
  Millimetre,  ///< one thousandth of a metre
  Centimetre,
  Inch = 25  ///< kept at its old value for files written by version 1
};

/// Converts a length from one unit to another.
Length convert(Length value, Unit from, Unit to);

/// Millimetres in one unit.
double millimetresPer(Unit unit);

}  // namespace geometry
