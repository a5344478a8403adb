#include "html/HtmlParser.h"

#include <gumbo.h>

#include <QByteArray>
#include <utility>

#include "model/Error.h"
#include "html/HtmlDocument.h"

namespace sv::HtmlParser {

namespace {

// Owns one parse; Gumbo's tree points into the buffer, so both live as long as this.
class GumboParse {
 public:
  GumboParse(const QString& html, GumboTag context, GumboNamespaceEnum contextNamespace)
      : mBuffer(html.toUtf8()), mOptions(kGumboDefaultOptions) {
    mOptions.fragment_context = context;
    mOptions.fragment_namespace = contextNamespace;
    mOutput = gumbo_parse_with_options(&mOptions, mBuffer.constData(),
                                       static_cast<size_t>(mBuffer.size()));
    if (!mOutput)
      Raise(ErrorNumber::InvalidCall, QStringLiteral("The HTML parser ran out of memory"));
  }
  ~GumboParse() { gumbo_destroy_output(&mOptions, mOutput); }
  GumboParse(const GumboParse&) = delete;
  GumboParse& operator=(const GumboParse&) = delete;

  const GumboOutput& output() const { return *mOutput; }

 private:
  QByteArray mBuffer;
  GumboOptions mOptions;
  GumboOutput* mOutput = nullptr;
};

HtmlNamespace namespaceOf(GumboNamespaceEnum ns) {
  switch (ns) {
    case GUMBO_NAMESPACE_SVG:
      return HtmlNamespace::Svg;
    case GUMBO_NAMESPACE_MATHML:
      return HtmlNamespace::MathMl;
    case GUMBO_NAMESPACE_HTML:
      break;
  }
  return HtmlNamespace::Html;
}

QString fromPiece(const GumboStringPiece& piece) {
  return QString::fromUtf8(piece.data, static_cast<qsizetype>(piece.length));
}

// The local name as a browser stores it: HTML names in lower case, SVG names in their mixed
// case ("foreignObject"), the names of unknown elements as written, folded to lower case.
QString localNameOf(const GumboElement& element) {
  GumboStringPiece original = element.original_tag;
  gumbo_tag_from_original_text(&original);
  if (element.tag_namespace == GUMBO_NAMESPACE_SVG && original.data) {
    if (const char* svgName = gumbo_normalize_svg_tagname(&original))
      return QString::fromUtf8(svgName);
  }
  if (element.tag != GUMBO_TAG_UNKNOWN)
    return QString::fromUtf8(gumbo_normalized_tagname(element.tag));
  if (!original.data || original.length == 0) return QStringLiteral("unknown");
  return fromPiece(original).toLower();
}

QString attributeName(const GumboAttribute& attribute) {
  const QString name = QString::fromUtf8(attribute.name);
  switch (attribute.attr_namespace) {
    case GUMBO_ATTR_NAMESPACE_XLINK:
      return QStringLiteral("xlink:") + name;
    case GUMBO_ATTR_NAMESPACE_XML:
      return QStringLiteral("xml:") + name;
    case GUMBO_ATTR_NAMESPACE_XMLNS:
      return name == QLatin1String("xmlns") ? name : QStringLiteral("xmlns:") + name;
    case GUMBO_ATTR_NAMESPACE_NONE:
      break;
  }
  return name;
}

std::shared_ptr<HtmlNode> makeNode(HtmlDocument& owner, const GumboNode& source) {
  switch (source.type) {
    case GUMBO_NODE_ELEMENT:
    case GUMBO_NODE_TEMPLATE: {
      const GumboElement& element = source.v.element;
      auto made = owner.createElementNS(namespaceOf(element.tag_namespace), localNameOf(element));
      for (unsigned i = 0; i < element.attributes.length; ++i) {
        const auto* attribute = static_cast<const GumboAttribute*>(element.attributes.data[i]);
        made->setAttribute(attributeName(*attribute), QString::fromUtf8(attribute->value));
      }
      return made;
    }
    case GUMBO_NODE_COMMENT:
      return owner.createComment(QString::fromUtf8(source.v.text.text));
    case GUMBO_NODE_TEXT:
    case GUMBO_NODE_CDATA:
    case GUMBO_NODE_WHITESPACE:
      return owner.createTextNode(QString::fromUtf8(source.v.text.text));
    case GUMBO_NODE_DOCUMENT:
      break;
  }
  Raise(ErrorNumber::InvalidCall, QStringLiteral("Unexpected node in the parsed HTML"));
}

const GumboVector& childrenOf(const GumboNode& node) {
  return node.type == GUMBO_NODE_DOCUMENT ? node.v.document.children : node.v.element.children;
}

// Copies the children of a Gumbo node. A work list rather than recursion: a deeply nested page
// must not exhaust the stack.
std::vector<std::shared_ptr<HtmlNode>> convertChildren(HtmlDocument& owner, const GumboNode& top) {
  std::vector<std::shared_ptr<HtmlNode>> result;
  std::vector<std::pair<const GumboNode*, HtmlNode*>> pending;
  auto pushChildren = [&pending](const GumboNode& node, HtmlNode* parent) {
    const GumboVector& children = childrenOf(node);
    for (unsigned i = children.length; i-- > 0;)
      pending.emplace_back(static_cast<const GumboNode*>(children.data[i]), parent);
  };
  pushChildren(top, nullptr);
  while (!pending.empty()) {
    const auto [source, parent] = pending.back();
    pending.pop_back();
    auto node = makeNode(owner, *source);
    HtmlNode* made = node.get();
    if (parent)
      parent->appendChild(std::move(node));
    else
      result.push_back(std::move(node));
    if (source->type == GUMBO_NODE_ELEMENT || source->type == GUMBO_NODE_TEMPLATE)
      pushChildren(*source, made);
  }
  return result;
}

GumboNamespaceEnum gumboNamespace(HtmlNamespace ns) {
  switch (ns) {
    case HtmlNamespace::Svg:
      return GUMBO_NAMESPACE_SVG;
    case HtmlNamespace::MathMl:
      return GUMBO_NAMESPACE_MATHML;
    case HtmlNamespace::Html:
      break;
  }
  return GUMBO_NAMESPACE_HTML;
}

}  // namespace

Page ParseDocument(HtmlDocument& owner, const QString& html) {
  const GumboParse parse(html, GUMBO_TAG_LAST, GUMBO_NAMESPACE_HTML);
  const GumboDocument& document = parse.output().document->v.document;
  Page page;
  if (document.has_doctype) page.doctype = QString::fromUtf8(document.name);
  page.nodes = convertChildren(owner, *parse.output().document);
  return page;
}

std::vector<std::shared_ptr<HtmlNode>> ParseFragment(HtmlDocument& owner, const QString& html,
                                                     HtmlNamespace contextNamespace,
                                                     const QString& contextName) {
  GumboTag context = gumbo_tag_enum(contextName.toUtf8().constData());
  // An element the parser does not know is parsed into as any ordinary element is.
  if (context == GUMBO_TAG_UNKNOWN) context = GUMBO_TAG_DIV;
  const GumboParse parse(html, context, gumboNamespace(contextNamespace));
  // A fragment's nodes are the children of the html element the parser puts around them.
  return convertChildren(owner, *parse.output().root);
}

}  // namespace sv::HtmlParser
