#include "geometry/Units.h"

namespace geometry {

double millimetresPer(Unit unit) {
  switch (unit) {
    case Unit::Millimetre:
      return 1.0;
    case Unit::Centimetre:
      return 10.0;
    case Unit::Inch:
      return 25.4;
  }
  return 1.0;
}

Length convert(Length value, Unit from, Unit to) {
  return value * millimetresPer(from) / millimetresPer(to);
}

}  // namespace geometry
