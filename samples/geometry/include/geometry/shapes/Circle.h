#pragma once

#include "geometry/shapes/Shape.h"

namespace geometry::shapes {

/// A circle given by its centre and radius.
class Circle : public Shape {
 public:
  Circle();
  /// A circle of the given radius around the origin.
  explicit Circle(Length radius);
  Circle(const Point& centre, Length radius);

  Length area() const override;
  Length perimeter() const override;
  std::string name() const override;

  Length radius() const { return mRadius; }
  void setRadius(Length radius);

  /// Makes circles step by step.
  class Builder {
   public:
    Builder& centre(const Point& centre);
    Builder& centre(Length x, Length y);
    Builder& radius(Length radius);
    Circle build() const;

   private:
    Point mCentre;
    Length mRadius = 1;
  };

 private:
  Length mRadius;
};

}  // namespace geometry::shapes
