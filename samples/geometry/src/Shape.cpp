#include "geometry/shapes/Shape.h"

namespace geometry::shapes {

Shape::Shape() : mId(nextId()) {}

Shape::Shape(const Point& origin) : mOrigin(origin), mId(nextId()) {}

Shape::~Shape() = default;

std::string Shape::name() const {
  return "shape";
}

void Shape::moveBy(Length dx, Length dy) {
  moveBy(Point{dx, dy});
}

void Shape::moveBy(const Point& delta) {
  mOrigin = mOrigin + delta;
  originChanged();
}

void Shape::originChanged() {}

int Shape::nextId() {
  static int last = 0;
  return ++last;
}

}  // namespace geometry::shapes
