#include "geometry/Point.h"

#include <cmath>

namespace geometry {

Length distance(const Point& a, const Point& b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

Point operator+(const Point& a, const Point& b) {
  return {a.x + b.x, a.y + b.y};
}

Point operator*(const Point& p, double factor) {
  return {p.x * factor, p.y * factor};
}

Point operator*(double factor, const Point& p) {
  return p * factor;
}

}  // namespace geometry
