#include "geometry/shapes/Polygon.h"

#include <cmath>
#include <numbers>

namespace geometry::shapes {

Length Polygon::signedArea() const {
  Length twice = 0;
  for (std::size_t i = 0; i < mCorners.size(); ++i) {
    const Point& a = mCorners[i];
    const Point& b = mCorners[(i + 1) % mCorners.size()];
    twice += a.x * b.y - b.x * a.y;
  }
  return twice / 2;
}

Length Polygon::area() const {
  return std::abs(signedArea());
}

Length Polygon::perimeter() const {
  Length sum = 0;
  for (std::size_t i = 0; i < mCorners.size(); ++i)
    sum += distance(mCorners[i], mCorners[(i + 1) % mCorners.size()]);
  return sum;
}

void Polygon::addCorner(const Point& corner) {
  mCorners.push_back(corner);
}

void Polygon::addCorner(Length x, Length y) {
  addCorner(Point{x, y});
}

Polygon::Winding Polygon::winding() const {
  return signedArea() < 0 ? Clockwise : CounterClockwise;
}

Polygon Polygon::regular(int sides, Length circumradius) {
  Polygon polygon;
  for (int i = 0; i < sides; ++i) {
    const double angle = 2 * std::numbers::pi * i / sides;
    polygon.addCorner(circumradius * std::cos(angle), circumradius * std::sin(angle));
  }
  return polygon;
}

}  // namespace geometry::shapes
