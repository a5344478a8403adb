#include "html/HtmlSerializer.h"

#include <QSet>
#include <utility>
#include <vector>

#include "html/HtmlElement.h"
#include "html/HtmlNode.h"

namespace sv::HtmlSerializer {

namespace {

constexpr QChar kNoBreakSpace(0x00A0);

// Elements whose text a browser writes as it stands.
bool isRawTextParent(const HtmlNode* parent) {
  static const QSet<QString> names = {QStringLiteral("style"),     QStringLiteral("script"),
                                      QStringLiteral("xmp"),       QStringLiteral("iframe"),
                                      QStringLiteral("noembed"),   QStringLiteral("noframes"),
                                      QStringLiteral("plaintext"), QStringLiteral("noscript")};
  if (!parent || !parent->isElement()) return false;
  const auto* element = static_cast<const HtmlElement*>(parent);
  return element->elementNamespace() == HtmlNamespace::Html && names.contains(element->localName());
}

void escape(QString& out, const QString& text, bool attributeMode) {
  for (const QChar c : text) {
    if (c == QLatin1Char('&'))
      out += QLatin1String("&amp;");
    else if (c == kNoBreakSpace)
      out += QLatin1String("&nbsp;");
    else if (attributeMode && c == QLatin1Char('"'))
      out += QLatin1String("&quot;");
    else if (!attributeMode && c == QLatin1Char('<'))
      out += QLatin1String("&lt;");
    else if (!attributeMode && c == QLatin1Char('>'))
      out += QLatin1String("&gt;");
    else
      out += c;
  }
}

void openTag(QString& out, const HtmlElement& element) {
  out += QLatin1Char('<') + element.localName();
  for (const HtmlAttribute& attribute : element.attributes()) {
    out += QLatin1Char(' ') + attribute.name + QLatin1String("=\"");
    escape(out, attribute.value, true);
    out += QLatin1Char('"');
  }
  out += QLatin1Char('>');
}

// Writes a node and everything below it. A work list rather than recursion: a deeply nested
// document must not exhaust the stack. An entry with `close` set writes an element's end tag.
void write(QString& out, const HtmlNode& top) {
  std::vector<std::pair<const HtmlNode*, bool>> pending{{&top, false}};
  while (!pending.empty()) {
    const auto [node, close] = pending.back();
    pending.pop_back();
    if (close) {
      out += QLatin1String("</") + static_cast<const HtmlElement*>(node)->localName() +
             QLatin1Char('>');
      continue;
    }
    switch (node->nodeType()) {
      case HtmlNodeType::Text:
        if (isRawTextParent(node->parentNode()))
          out += node->nodeValue();
        else
          escape(out, node->nodeValue(), false);
        break;
      case HtmlNodeType::Comment:
        out += QLatin1String("<!--") + node->nodeValue() + QLatin1String("-->");
        break;
      case HtmlNodeType::Element: {
        const auto& element = static_cast<const HtmlElement&>(*node);
        openTag(out, element);
        if (element.isVoid()) break;
        pending.emplace_back(node, true);
        const auto& children = node->childNodes();
        for (auto it = children.rbegin(); it != children.rend(); ++it)
          pending.emplace_back(it->get(), false);
        break;
      }
      case HtmlNodeType::Document:
        for (auto it = node->childNodes().rbegin(); it != node->childNodes().rend(); ++it)
          pending.emplace_back(it->get(), false);
        break;
    }
  }
}

}  // namespace

QString Outer(const HtmlNode& node) {
  QString out;
  write(out, node);
  return out;
}

QString Inner(const HtmlNode& node) {
  QString out;
  if (node.isElement() && static_cast<const HtmlElement&>(node).isVoid()) return out;
  for (const auto& child : node.childNodes()) write(out, *child);
  return out;
}

}  // namespace sv::HtmlSerializer
