#pragma once

namespace geometry {

/// Length in the unit the drawing was made in.
typedef double Length;

/// A point in the plane.
struct Point {
  Length x = 0;
  Length y = 0;
};

/// Distance between two points.
Length distance(const Point& a, const Point& b);

/// Point translated by a vector given as a point.
Point operator+(const Point& a, const Point& b);
/// Point scaled from the origin.
Point operator*(const Point& p, double factor);
/// Point scaled from the origin, factor first.
Point operator*(double factor, const Point& p);

}  // namespace geometry
