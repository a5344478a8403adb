#pragma once

#include <QString>

class QTextDocument;

namespace sv {

// The HTML a comment is stored as, written from what a person edited in a rich-text view:
// paragraphs, line breaks, bold, italic, underline, links and bulleted or numbered lists, and
// nothing of the view's own styling. Text is escaped as a browser writes it (&amp; &lt; &gt;,
// U+00A0 as &nbsp;). A page of one plain paragraph is written without the <p>, as the texts of
// short comments are stored; an empty page is the empty string.
class SimpleHtml {
 public:
  static QString FromDocument(const QTextDocument& document);
  static QString Escape(const QString& text);
};

}  // namespace sv
