#include "studio/SimpleHtml.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <array>
#include <vector>

namespace sv {

namespace {

// The inline marks in the order they nest: a link outermost, underline innermost.
enum Mark { Link, Bold, Italic, Underline, MarkCount };

struct Marks {
  std::array<bool, MarkCount> on{};
  QString href;

  bool same(const Marks& other, int mark) const {
    return on[mark] == other.on[mark] && (mark != Link || href == other.href);
  }
};

Marks marksOf(const QTextCharFormat& format) {
  Marks marks;
  marks.on[Link] = format.isAnchor() && !format.anchorHref().isEmpty();
  if (marks.on[Link]) marks.href = format.anchorHref();
  marks.on[Bold] = format.fontWeight() >= QFont::DemiBold;
  marks.on[Italic] = format.fontItalic();
  marks.on[Underline] = format.fontUnderline() && !marks.on[Link];
  return marks;
}

QString openTag(int mark, const Marks& marks) {
  switch (mark) {
    case Link:
      return QStringLiteral("<a href=\"") +
             SimpleHtml::Escape(marks.href).replace(QLatin1Char('"'), QStringLiteral("&quot;")) +
             QStringLiteral("\">");
    case Bold:
      return QStringLiteral("<b>");
    case Italic:
      return QStringLiteral("<i>");
    default:
      return QStringLiteral("<u>");
  }
}

QString closeTag(int mark) {
  static const std::array<QString, MarkCount> tags{QStringLiteral("</a>"), QStringLiteral("</b>"),
                                                   QStringLiteral("</i>"), QStringLiteral("</u>")};
  return tags[mark];
}

// Writes one block's text with its marks, keeping a mark open across runs that share it.
QString inlineHtml(const QTextBlock& block) {
  QString html;
  Marks open;
  for (auto it = block.begin(); !it.atEnd(); ++it) {
    const QTextFragment fragment = it.fragment();
    if (!fragment.isValid()) continue;
    const Marks wanted = marksOf(fragment.charFormat());
    int keep = 0;
    while (keep < MarkCount && open.same(wanted, keep)) ++keep;
    for (int mark = MarkCount - 1; mark >= keep; --mark)
      if (open.on[mark]) html += closeTag(mark);
    for (int mark = keep; mark < MarkCount; ++mark)
      if (wanted.on[mark]) html += openTag(mark, wanted);
    open = wanted;
    // A line break inside a paragraph (Shift+Return) is U+2028 in the document.
    html += SimpleHtml::Escape(fragment.text()).replace(QChar(0x2028), QStringLiteral("<br>"));
  }
  for (int mark = MarkCount - 1; mark >= 0; --mark)
    if (open.on[mark]) html += closeTag(mark);
  return html;
}

bool isNumbered(const QTextList* list) {
  const QTextListFormat::Style style = list->format().style();
  return style == QTextListFormat::ListDecimal || style == QTextListFormat::ListLowerAlpha ||
         style == QTextListFormat::ListUpperAlpha || style == QTextListFormat::ListLowerRoman ||
         style == QTextListFormat::ListUpperRoman;
}

}  // namespace

QString SimpleHtml::Escape(const QString& text) {
  QString escaped;
  escaped.reserve(text.size());
  for (const QChar c : text) {
    switch (c.unicode()) {
      case '&':
        escaped += QStringLiteral("&amp;");
        break;
      case '<':
        escaped += QStringLiteral("&lt;");
        break;
      case '>':
        escaped += QStringLiteral("&gt;");
        break;
      case 0x00A0:
        escaped += QStringLiteral("&nbsp;");
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

QString SimpleHtml::FromDocument(const QTextDocument& document) {
  // Top-level parts: a paragraph (no list tag) or a whole list, and their inner HTML.
  struct Part {
    QString listTag;
    QString html;
  };
  std::vector<Part> parts;
  const QTextList* list = nullptr;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    const QTextList* blockList = block.textList();
    const QString text = inlineHtml(block);
    if (!blockList) {
      parts.push_back({{}, text});
    } else {
      if (blockList != list)
        parts.push_back({isNumbered(blockList) ? QStringLiteral("ol") : QStringLiteral("ul"), {}});
      parts.back().html += QStringLiteral("<li>") + text + QStringLiteral("</li>");
    }
    list = blockList;
  }
  // An empty last line is where the caret stood, not content.
  while (!parts.empty() && parts.back().listTag.isEmpty() && parts.back().html.isEmpty())
    parts.pop_back();
  if (parts.size() == 1 && parts.front().listTag.isEmpty()) return parts.front().html;
  QString html;
  for (const Part& part : parts) {
    const QString tag = part.listTag.isEmpty() ? QStringLiteral("p") : part.listTag;
    html += QLatin1Char('<') + tag + QLatin1Char('>') + part.html + QStringLiteral("</") + tag +
            QLatin1Char('>');
  }
  return html;
}

}  // namespace sv
