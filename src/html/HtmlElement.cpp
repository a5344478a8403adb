#include "html/HtmlElement.h"

#include <QSet>
#include <algorithm>

#include "model/Error.h"
#include "html/HtmlDocument.h"
#include "html/HtmlSerializer.h"

namespace sv {

HtmlElement::HtmlElement(HtmlDocument* owner, HtmlNamespace ns, QString localName)
    : HtmlNode(HtmlNodeType::Element, owner), mNamespace(ns), mLocalName(std::move(localName)) {}

HtmlElement::~HtmlElement() = default;

QString HtmlElement::tagName() const {
  return mNamespace == HtmlNamespace::Html ? mLocalName.toUpper() : mLocalName;
}

bool HtmlElement::isVoid() const {
  static const QSet<QString> names = {
      QStringLiteral("area"),    QStringLiteral("base"),  QStringLiteral("basefont"),
      QStringLiteral("bgsound"), QStringLiteral("br"),    QStringLiteral("col"),
      QStringLiteral("embed"),   QStringLiteral("frame"), QStringLiteral("hr"),
      QStringLiteral("img"),     QStringLiteral("input"), QStringLiteral("keygen"),
      QStringLiteral("link"),    QStringLiteral("meta"),  QStringLiteral("param"),
      QStringLiteral("source"),  QStringLiteral("track"), QStringLiteral("wbr")};
  return mNamespace == HtmlNamespace::Html && names.contains(mLocalName);
}

std::vector<HtmlAttribute>::const_iterator HtmlElement::findAttribute(const QString& name) const {
  return std::find_if(mAttributes.begin(), mAttributes.end(), [&](const HtmlAttribute& attribute) {
    return attribute.name.compare(name, Qt::CaseInsensitive) == 0;
  });
}

bool HtmlElement::hasAttribute(const QString& name) const {
  return findAttribute(name) != mAttributes.end();
}

QString HtmlElement::getAttribute(const QString& name) const {
  const auto it = findAttribute(name);
  return it == mAttributes.end() ? QString() : it->value;
}

void HtmlElement::setAttribute(const QString& name, const QString& value) {
  if (name.isEmpty()) Raise(ErrorNumber::InvalidCall, QStringLiteral("An attribute needs a name"));
  const auto it = findAttribute(name);
  if (it == mAttributes.end()) {
    const QString stored = mNamespace == HtmlNamespace::Html ? name.toLower() : name;
    mAttributes.push_back({stored, value});
  } else if (it->value == value) {
    return;
  } else {
    mAttributes[it - mAttributes.begin()].value = value;
  }
  changed();
}

void HtmlElement::removeAttribute(const QString& name) {
  const auto it = findAttribute(name);
  if (it == mAttributes.end()) return;
  mAttributes.erase(it);
  changed();
}

std::vector<HtmlElement*> HtmlElement::children() const {
  std::vector<HtmlElement*> elements;
  for (const auto& child : childNodes())
    if (child->isElement()) elements.push_back(static_cast<HtmlElement*>(child.get()));
  return elements;
}

QString HtmlElement::innerHTML() const {
  return HtmlSerializer::Inner(*this);
}

QString HtmlElement::outerHTML() const {
  return HtmlSerializer::Outer(*this);
}

std::vector<std::shared_ptr<HtmlNode>> HtmlElement::parseIn(const HtmlElement& context,
                                                            const QString& html) const {
  return ownerDocument()->parseFragment(html, context);
}

HtmlElement& HtmlElement::requireParentElement(const char* operation) const {
  HtmlElement* parent = parentElement();
  if (!parent)
    Raise(
        ErrorNumber::InvalidCall,
        QStringLiteral("%1 needs an element with a parent element").arg(QLatin1String(operation)));
  return *parent;
}

void HtmlElement::setInnerHTML(const QString& html) {
  const auto nodes = parseIn(*this, html);
  clearChildren();
  insertChildren(0, nodes);
}

void HtmlElement::setOuterHTML(const QString& html) {
  HtmlElement& parent = requireParentElement("outerHTML");
  const auto nodes = parseIn(parent, html);
  // The element leaves only after its replacement is in, so `this` stays valid until the end.
  const auto self = shared_from_this();
  parent.insertChildren(indexInParent(), nodes);
  parent.removeChild(this);
}

void HtmlElement::insertAdjacentHTML(const QString& where, const QString& html) {
  const QString position = where.toLower();
  if (position == QLatin1String("afterbegin")) {
    insertChildren(0, parseIn(*this, html));
    return;
  }
  if (position == QLatin1String("beforeend")) {
    insertChildren(childCount(), parseIn(*this, html));
    return;
  }
  if (position == QLatin1String("beforebegin")) {
    HtmlElement& parent = requireParentElement("insertAdjacentHTML");
    parent.insertChildren(indexInParent(), parseIn(parent, html));
    return;
  }
  if (position == QLatin1String("afterend")) {
    HtmlElement& parent = requireParentElement("insertAdjacentHTML");
    parent.insertChildren(indexInParent() + 1, parseIn(parent, html));
    return;
  }
  Raise(ErrorNumber::InvalidCall,
        QStringLiteral("Invalid insertAdjacentHTML position \"%1\"").arg(where));
}

}  // namespace sv
