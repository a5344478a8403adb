#include "geometry/io/SvgWriter.h"

#include <sstream>

namespace geometry::io {

SvgWriter::SvgWriter(std::ostream& out, Style style) : mOut(out), mStyle(style) {}

std::string SvgWriter::styleAttribute() const {
  return mStyle == Style::Filled ? "fill=\"black\"" : "fill=\"none\" stroke=\"black\"";
}

void SvgWriter::write(const shapes::Circle& circle) {
  mOut << "<circle cx=\"" << circle.origin().x << "\" cy=\"" << circle.origin().y << "\" r=\""
       << circle.radius() << "\" " << styleAttribute() << "/>\n";
  ++mWritten;
}

void SvgWriter::write(const shapes::Polygon& polygon) {
  mOut << "<polygon points=\"";
  for (const Point& corner : polygon.corners()) mOut << corner.x << ',' << corner.y << ' ';
  mOut << "\" " << styleAttribute() << "/>\n";
  ++mWritten;
}

std::string toText(const shapes::Shape& shape) {
  std::ostringstream text;
  text << shape.name() << " #" << shape.id() << " area " << shape.area();
  return text.str();
}

}  // namespace geometry::io
