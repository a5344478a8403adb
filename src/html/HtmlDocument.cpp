#include "html/HtmlDocument.h"

#include "model/Error.h"
#include "html/HtmlParser.h"
#include "html/HtmlSerializer.h"

namespace sv {

namespace {

HtmlElement* childElement(const HtmlNode* parent, const QString& localName) {
  if (!parent) return nullptr;
  for (const auto& child : parent->childNodes()) {
    if (!child->isElement()) continue;
    auto* element = static_cast<HtmlElement*>(child.get());
    if (element->localName() == localName) return element;
  }
  return nullptr;
}

}  // namespace

HtmlDocument::HtmlDocument() : mRoot(newDocumentNode()) {
  mRoot->mConnected = true;
  write(QString());
  mRevision = 0;
}

HtmlDocument::~HtmlDocument() = default;

std::shared_ptr<HtmlNode> HtmlDocument::newDocumentNode() {
  return std::shared_ptr<HtmlNode>(new HtmlNode(HtmlNodeType::Document, this));
}

void HtmlDocument::write(const QString& html) {
  HtmlParser::Page page = HtmlParser::ParseDocument(*this, html);
  // The new tree is built apart and put in place at once: one change, not one per node.
  auto root = newDocumentNode();
  for (auto& node : page.nodes) {
    node->mParent = root.get();
    root->mChildren.push_back(std::move(node));
  }
  mRoot->setConnected(false);
  root->setConnected(true);
  mRoot = std::move(root);
  mDoctype = page.doctype;
  noteChanged();
}

QString HtmlDocument::documentHTML() const {
  QString html;
  if (!mDoctype.isEmpty()) html = QStringLiteral("<!DOCTYPE ") + mDoctype + QLatin1Char('>');
  return html + HtmlSerializer::Inner(*mRoot);
}

HtmlElement* HtmlDocument::documentElement() const {
  return childElement(mRoot.get(), QStringLiteral("html"));
}

HtmlElement* HtmlDocument::head() const {
  return childElement(documentElement(), QStringLiteral("head"));
}

HtmlElement* HtmlDocument::body() const {
  return childElement(documentElement(), QStringLiteral("body"));
}

HtmlElement* HtmlDocument::getElementById(const QString& id) const {
  return mRoot->findElementById(id);
}

std::vector<HtmlElement*> HtmlDocument::getElementsByTagName(const QString& tagName) const {
  return mRoot->getElementsByTagName(tagName);
}

std::shared_ptr<HtmlElement> HtmlDocument::createElement(const QString& tagName) {
  return createElementNS(HtmlNamespace::Html, tagName.toLower());
}

std::shared_ptr<HtmlElement> HtmlDocument::createElementNS(HtmlNamespace ns,
                                                           const QString& localName) {
  if (localName.isEmpty())
    Raise(ErrorNumber::InvalidCall, QStringLiteral("An element needs a tag name"));
  return std::shared_ptr<HtmlElement>(new HtmlElement(this, ns, localName));
}

std::shared_ptr<HtmlNode> HtmlDocument::createTextNode(const QString& text) {
  return std::shared_ptr<HtmlNode>(new HtmlNode(HtmlNodeType::Text, this, text));
}

std::shared_ptr<HtmlNode> HtmlDocument::createComment(const QString& text) {
  return std::shared_ptr<HtmlNode>(new HtmlNode(HtmlNodeType::Comment, this, text));
}

std::vector<std::shared_ptr<HtmlNode>> HtmlDocument::parseFragment(const QString& html,
                                                                   const HtmlElement& context) {
  return HtmlParser::ParseFragment(*this, html, context.elementNamespace(), context.localName());
}

void HtmlDocument::noteChanged() {
  ++mRevision;
  if (mChangeHandler) mChangeHandler();
}

}  // namespace sv
