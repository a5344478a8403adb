#pragma once

#include <ostream>
#include <string>

#include "geometry/shapes/Circle.h"
#include "geometry/shapes/Polygon.h"

namespace geometry::io {

/// Writes shapes as SVG elements.
class SvgWriter {
 public:
  /// How outlines are painted.
  enum class Style { Outline, Filled };

  explicit SvgWriter(std::ostream& out, Style style = Style::Outline);

  void write(const shapes::Circle& circle);
  void write(const shapes::Polygon& polygon);
  int written() const { return mWritten; }

 private:
  std::string styleAttribute() const;

  std::ostream& mOut;
  Style mStyle;
  int mWritten = 0;
};

/// A one-line description of a shape, for logs.
std::string toText(const shapes::Shape& shape);

}  // namespace geometry::io
