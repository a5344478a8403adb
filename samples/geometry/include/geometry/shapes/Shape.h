#pragma once

#include <string>

#include "geometry/Point.h"

namespace geometry::shapes {

/// Base of every figure that can be measured and drawn.
class Shape {
 public:
  virtual ~Shape();

  /// Area enclosed by the outline.
  virtual Length area() const = 0;
  virtual Length perimeter() const = 0;
  virtual std::string name() const;

  /// Moves the shape by a vector.
  void moveBy(Length dx, Length dy);
  /// Moves the shape by a vector given as a point.
  void moveBy(const Point& delta);

  const Point& origin() const { return mOrigin; }
  int id() const { return mId; }

 protected:
  Shape();
  explicit Shape(const Point& origin);

  virtual void originChanged();

 private:
  static int nextId();

  Point mOrigin;
  int mId;
};

}  // namespace geometry::shapes
