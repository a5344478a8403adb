#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "html/HtmlNode.h"

namespace sv {

enum class HtmlNamespace { Html, Svg, MathMl };

struct HtmlAttribute {
  // As serialised: lower case for HTML attributes, "xlink:href" style for foreign ones.
  QString name;
  QString value;
};

// An element of an HtmlDocument. Attribute names compare without regard to case, as HTML's do.
// innerHTML, outerHTML and insertAdjacentHTML parse as a browser parses a fragment in the
// element's context, and read back what a browser's HTML serialiser writes.
class HtmlElement : public HtmlNode {
 public:
  ~HtmlElement() override;

  // Upper case for HTML elements, as browsers answer; foreign elements keep their case.
  QString tagName() const;
  QString nodeName() const override { return tagName(); }
  // The name as parsed: lower case for HTML, "foreignObject" style in SVG.
  const QString& localName() const { return mLocalName; }
  HtmlNamespace elementNamespace() const { return mNamespace; }
  // Area, br, img and the other elements that have no content and no end tag.
  bool isVoid() const;

  QString id() const { return getAttribute(QStringLiteral("id")); }
  void setId(const QString& value) { setAttribute(QStringLiteral("id"), value); }
  QString className() const { return getAttribute(QStringLiteral("class")); }
  void setClassName(const QString& value) { setAttribute(QStringLiteral("class"), value); }
  bool hasAttribute(const QString& name) const;
  // Empty when the element has no such attribute.
  QString getAttribute(const QString& name) const;
  void setAttribute(const QString& name, const QString& value);
  void removeAttribute(const QString& name);
  const std::vector<HtmlAttribute>& attributes() const { return mAttributes; }

  // The element children, without text and comments.
  std::vector<HtmlElement*> children() const;

  QString innerHTML() const;
  void setInnerHTML(const QString& html);
  QString outerHTML() const;
  // Replaces the element by the parsed nodes; raises InvalidCall when it has no parent element.
  void setOuterHTML(const QString& html);
  // `where` is "beforeBegin", "afterBegin", "beforeEnd" or "afterEnd", in any case; others raise
  // InvalidCall, as do the outer positions of an element without a parent element.
  void insertAdjacentHTML(const QString& where, const QString& html);
  QString innerText() const { return textContent(); }
  void setInnerText(const QString& text) { setTextContent(text); }

 private:
  friend class HtmlDocument;

  HtmlElement(HtmlDocument* owner, HtmlNamespace ns, QString localName);
  std::vector<HtmlAttribute>::const_iterator findAttribute(const QString& name) const;
  // The parsed nodes of `html` as children of an element like `context`.
  std::vector<std::shared_ptr<HtmlNode>> parseIn(const HtmlElement& context,
                                                 const QString& html) const;
  HtmlElement& requireParentElement(const char* operation) const;

  HtmlNamespace mNamespace;
  QString mLocalName;
  std::vector<HtmlAttribute> mAttributes;
};

}  // namespace sv
