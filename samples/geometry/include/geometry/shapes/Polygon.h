#pragma once

#include <vector>

#include "geometry/shapes/Shape.h"

namespace geometry::shapes {

/// A closed outline through a list of corners.
class Polygon : public Shape {
 public:
  /// Order in which the corners run round the outline.
  enum Winding { Clockwise, CounterClockwise };

  using Corners = std::vector<Point>;

  Length area() const override;
  Length perimeter() const override;

  void addCorner(const Point& corner);
  void addCorner(Length x, Length y);
  const Corners& corners() const { return mCorners; }
  Winding winding() const;

  /// A regular polygon with the given number of sides.
  static Polygon regular(int sides, Length circumradius);

 protected:
  Length signedArea() const;

 private:
  Corners mCorners;
};

}  // namespace geometry::shapes
