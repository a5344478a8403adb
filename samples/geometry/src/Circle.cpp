#include "geometry/shapes/Circle.h"

#include <numbers>

namespace geometry::shapes {

Circle::Circle() : mRadius(1) {}

Circle::Circle(Length radius) : mRadius(radius) {}

Circle::Circle(const Point& centre, Length radius) : Shape(centre), mRadius(radius) {}

Length Circle::area() const {
  return std::numbers::pi * mRadius * mRadius;
}

Length Circle::perimeter() const {
  return 2 * std::numbers::pi * mRadius;
}

std::string Circle::name() const {
  return "circle";
}

void Circle::setRadius(Length radius) {
  mRadius = radius;
}

Circle::Builder& Circle::Builder::centre(const Point& centre) {
  mCentre = centre;
  return *this;
}

Circle::Builder& Circle::Builder::centre(Length x, Length y) {
  return centre(Point{x, y});
}

Circle::Builder& Circle::Builder::radius(Length radius) {
  mRadius = radius;
  return *this;
}

Circle Circle::Builder::build() const {
  return Circle(mCentre, mRadius);
}

}  // namespace geometry::shapes
