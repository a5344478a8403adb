#pragma once

#include <QString>

namespace sv {

class HtmlNode;

// The HTML serialiser of browsers (innerHTML and outerHTML).
namespace HtmlSerializer {

// The node itself: an element with its tags, a text escaped, a comment in its delimiters.
QString Outer(const HtmlNode& node);
// The node's children one after the other.
QString Inner(const HtmlNode& node);

}  // namespace HtmlSerializer
}  // namespace sv
