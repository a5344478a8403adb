#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "html/HtmlElement.h"
#include "html/HtmlNode.h"

namespace sv {

// A mutable HTML document: the tree a browser builds from a page (HTML5 parsing by Gumbo), with
// the members the components use of a browser's document object. A new document is the empty
// page "<html><head></head><body></body></html>". Stored comment texts are compared with what
// this document writes, so it writes as a browser's serialiser does: `<br>` for void elements,
// U+00A0 as "&nbsp;", "&", "<" and ">" escaped in text, "&" and '"' in attribute values, the
// text of script and style as it stands, and comments kept.
class HtmlDocument {
 public:
  HtmlDocument();
  ~HtmlDocument();
  HtmlDocument(const HtmlDocument&) = delete;
  HtmlDocument& operator=(const HtmlDocument&) = delete;

  // Replaces the whole document with the parse of a page.
  void write(const QString& html);
  // The page as a browser would save it: the doctype, if the page had one, and every node.
  QString documentHTML() const;
  // The doctype's name ("html"); empty for a page without a doctype.
  const QString& doctypeName() const { return mDoctype; }

  // The node above the html element; top-level comments hang here too.
  HtmlNode& documentNode() const { return *mRoot; }
  HtmlElement* documentElement() const;
  HtmlElement* head() const;
  HtmlElement* body() const;
  // The first element in document order with that id (case-sensitive), or null.
  HtmlElement* getElementById(const QString& id) const;
  std::vector<HtmlElement*> getElementsByTagName(const QString& tagName) const;

  // New nodes of this document, not yet in its tree. Tag names of HTML elements are stored in
  // lower case.
  std::shared_ptr<HtmlElement> createElement(const QString& tagName);
  std::shared_ptr<HtmlElement> createElementNS(HtmlNamespace ns, const QString& localName);
  std::shared_ptr<HtmlNode> createTextNode(const QString& text);
  std::shared_ptr<HtmlNode> createComment(const QString& text);
  // The nodes of an HTML fragment as a browser parses it for the inside of `context` (an element
  // of any document; its tag and namespace are what counts).
  std::vector<std::shared_ptr<HtmlNode>> parseFragment(const QString& html,
                                                       const HtmlElement& context);

  // Counts the changes to the tree; every edit of a node in the tree moves it.
  quint64 revision() const { return mRevision; }
  // Called after each change to the tree.
  void setChangeHandler(std::function<void()> handler) { mChangeHandler = std::move(handler); }

 private:
  friend class HtmlNode;

  void noteChanged();
  std::shared_ptr<HtmlNode> newDocumentNode();

  std::shared_ptr<HtmlNode> mRoot;
  QString mDoctype;
  quint64 mRevision = 0;
  std::function<void()> mChangeHandler;
};

}  // namespace sv
