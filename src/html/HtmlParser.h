#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "html/HtmlElement.h"

namespace sv {

class HtmlDocument;
class HtmlNode;

// Gumbo's HTML5 parser, turned into nodes of an HtmlDocument. Parsing never fails on bad markup:
// it repairs it as a browser does.
namespace HtmlParser {

struct Page {
  QString doctype;                               // empty without a doctype
  std::vector<std::shared_ptr<HtmlNode>> nodes;  // the children of the document node
};

// A whole page; the result always has an html element with head and body.
Page ParseDocument(HtmlDocument& owner, const QString& html);
// A fragment as the content of an element of that namespace and local name.
std::vector<std::shared_ptr<HtmlNode>> ParseFragment(HtmlDocument& owner, const QString& html,
                                                     HtmlNamespace contextNamespace,
                                                     const QString& contextName);

}  // namespace HtmlParser
}  // namespace sv
