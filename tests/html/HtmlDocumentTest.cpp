#include "html/HtmlDocument.h"

#include <gtest/gtest.h>

#include "model/Error.h"
#include "support/QtPrinters.h"

namespace sv {
namespace {

// The body of a page parsed from `html`, written back as a browser writes it.
QString RoundTrip(const QString& html) {
  HtmlDocument document;
  document.body()->setInnerHTML(html);
  return document.body()->innerHTML();
}

TEST(HtmlDocumentTest, WritesWhatABrowserWrites) {
  // Void elements have no end tag and no slash; names and attributes are folded to lower case.
  EXPECT_EQ(RoundTrip("a<br/>b<BR><IMG SRC='x.png' Alt=Pic><hr />"),
            "a<br>b<br><img src=\"x.png\" alt=\"Pic\"><hr>");
  // A no-break space is written as its entity, whichever way it came in.
  EXPECT_EQ(RoundTrip("<p>&nbsp;</p><p>\u00a0x&#160;</p>"), "<p>&nbsp;</p><p>&nbsp;x&nbsp;</p>");
  // Text escapes &, < and >; attributes escape & and the double quote, and leave < and > alone.
  EXPECT_EQ(RoundTrip("1 &lt; 2 &amp;&amp; 3 &gt; 2 & done"),
            "1 &lt; 2 &amp;&amp; 3 &gt; 2 &amp; done");
  EXPECT_EQ(RoundTrip("<a title='say \"a<b\" & go' href=\"x?a=1&amp;b=2\">l</a>"),
            "<a title=\"say &quot;a<b&quot; &amp; go\" href=\"x?a=1&amp;b=2\">l</a>");
  // Script and style keep their text as it stands.
  EXPECT_EQ(
      RoundTrip("<script>if (a < b && c > d) go();</script><style>p > b { x: \"&\" }</style>"),
      "<script>if (a < b && c > d) go();</script><style>p > b { x: \"&\" }</style>");
  // Comments stay where they were: meta data lives in them.
  EXPECT_EQ(RoundTrip("<p>x<!-- sv:meta name=\"a\" --></p><!--end-->"),
            "<p>x<!-- sv:meta name=\"a\" --></p><!--end-->");
  // Bad markup is repaired as a browser repairs it.
  EXPECT_EQ(RoundTrip("<P CLASS=x>one<p>two<b>bold<i>both</b>italic"),
            "<p class=\"x\">one</p><p>two<b>bold<i>both</i></b><i>italic</i></p>");
  // Foreign content keeps its case; unknown elements are folded.
  EXPECT_EQ(
      RoundTrip("<svg viewBox=\"0 0 1 1\"><foreignObject/></svg><My-Widget Data-X=1></My-Widget>"),
      "<svg viewBox=\"0 0 1 1\"><foreignObject></foreignObject></svg>"
      "<my-widget data-x=\"1\"></my-widget>");
}

TEST(HtmlDocumentTest, ParsesWholePagesWithTheirDoctypeAndTopComments) {
  HtmlDocument document;
  EXPECT_EQ(document.documentHTML(), "<html><head></head><body></body></html>");
  document.write("<!DOCTYPE html><!--generated--><title>T</title><p id=first>x");
  EXPECT_EQ(document.doctypeName(), "html");
  EXPECT_EQ(document.documentHTML(),
            "<!DOCTYPE html><!--generated--><html><head><title>T</title></head>"
            "<body><p id=\"first\">x</p></body></html>");
  EXPECT_EQ(document.head()->innerHTML(), "<title>T</title>");
  EXPECT_EQ(document.documentElement()->tagName(), "HTML");
  EXPECT_EQ(document.getElementById("first")->parentElement(), document.body());
  EXPECT_EQ(document.getElementById("First"), nullptr);

  document.write("plain");
  EXPECT_EQ(document.doctypeName(), "");
  EXPECT_EQ(document.body()->innerHTML(), "plain");
  EXPECT_EQ(document.getElementById("first"), nullptr);
}

TEST(HtmlDocumentTest, ParsesFragmentsInTheirContext) {
  HtmlDocument document;
  document.body()->setInnerHTML("<table><tbody><tr id=row></tr></tbody></table><ul id=list></ul>");
  HtmlElement* row = document.getElementById("row");
  // Cells are cells inside a row, and stray text inside the body.
  row->setInnerHTML("<td>a</td><td>b</td>");
  EXPECT_EQ(row->outerHTML(), "<tr id=\"row\"><td>a</td><td>b</td></tr>");
  const auto loose = document.parseFragment("<td>a</td>", *document.body());
  ASSERT_EQ(loose.size(), 1u);
  EXPECT_EQ(loose[0]->nodeType(), HtmlNodeType::Text);
  // A fragment's nodes belong to no tree until they are put in one.
  EXPECT_EQ(loose[0]->parentNode(), nullptr);
  EXPECT_FALSE(loose[0]->isConnected());

  HtmlElement* list = document.getElementById("list");
  list->setInnerHTML("<li>one<li>two");
  EXPECT_EQ(list->innerHTML(), "<li>one</li><li>two</li>");
  EXPECT_EQ(list->children().size(), 2u);
  EXPECT_EQ(document.getElementsByTagName("LI").size(), 2u);
  // html, head, body, table, tbody, tr, two cells, ul and two items.
  EXPECT_EQ(document.getElementsByTagName("*").size(), 11u);
}

TEST(HtmlDocumentTest, InsertsAdjacentHtmlAtTheFourPositions) {
  HtmlDocument document;
  document.body()->setInnerHTML("<p id=p>mid</p>");
  HtmlElement* p = document.getElementById("p");
  p->insertAdjacentHTML("beforeBegin", "<i>1</i>");
  p->insertAdjacentHTML("AFTERBEGIN", "2");
  p->insertAdjacentHTML("beforeend", "<b>3</b>");
  p->insertAdjacentHTML("afterEnd", "4<!--c-->");
  EXPECT_EQ(document.body()->innerHTML(), "<i>1</i><p id=\"p\">2mid<b>3</b></p>4<!--c-->");
  EXPECT_THROW(p->insertAdjacentHTML("inside", "x"), Error);

  // The outer positions need a parent element.
  const auto loose = document.createElement("DIV");
  EXPECT_EQ(loose->localName(), "div");
  EXPECT_THROW(loose->insertAdjacentHTML("afterend", "x"), Error);
  loose->insertAdjacentHTML("beforeend", "<span>in</span>");
  EXPECT_EQ(loose->outerHTML(), "<div><span>in</span></div>");
}

TEST(HtmlDocumentTest, EditsTheTreeAsADocumentObjectDoes) {
  HtmlDocument document;
  document.body()->setInnerHTML("<div id=box class=a><b>bold</b> and <i>italic</i></div>");
  HtmlElement* box = document.getElementById("box");

  box->setAttribute("TITLE", "Tip");
  box->setClassName("b");
  box->removeAttribute("ID");
  EXPECT_FALSE(box->hasAttribute("id"));
  EXPECT_EQ(box->getAttribute("title"), "Tip");
  EXPECT_EQ(box->outerHTML(), "<div class=\"b\" title=\"Tip\"><b>bold</b> and <i>italic</i></div>");
  EXPECT_EQ(box->textContent(), "bold and italic");

  // Removal that keeps the children leaves them where the element stood.
  HtmlElement* bold = box->children()[0];
  std::shared_ptr<HtmlNode> removed = bold->removeNode(false);
  EXPECT_EQ(box->innerHTML(), "bold and <i>italic</i>");
  EXPECT_EQ(removed->parentNode(), nullptr);
  EXPECT_EQ(removed->childCount(), 0);
  // A deep removal takes them along; the node lives on while it is held.
  std::shared_ptr<HtmlNode> italic = box->children()[0]->removeNode(true);
  EXPECT_EQ(box->innerHTML(), "bold and ");
  EXPECT_EQ(static_cast<HtmlElement&>(*italic).outerHTML(), "<i>italic</i>");

  // A node put elsewhere moves; a node cannot go into itself; text holds no children.
  box->insertBefore(italic, box->firstChild());
  EXPECT_EQ(box->innerHTML(), "<i>italic</i>bold and ");
  EXPECT_EQ(italic->nextSibling()->nodeValue(), "bold");
  EXPECT_THROW(italic->appendChild(box->shared_from_this()), Error);
  EXPECT_THROW(box->lastChild()->appendChild(document.createTextNode("x")), Error);
  EXPECT_THROW(box->removeChild(document.body()), Error);

  static_cast<HtmlElement&>(*italic).setOuterHTML("<em>new</em><u>two</u>");
  EXPECT_EQ(box->innerHTML(), "<em>new</em><u>two</u>bold and ");
  EXPECT_EQ(italic->parentNode(), nullptr);
  box->setInnerText("a < b");
  EXPECT_EQ(box->innerHTML(), "a &lt; b");
  EXPECT_THROW(document.documentElement()->setOuterHTML("<p>"), Error);
}

TEST(HtmlDocumentTest, CountsChangesToItsTreeOnly) {
  HtmlDocument document;
  int calls = 0;
  document.setChangeHandler([&] { ++calls; });
  const quint64 start = document.revision();

  const auto loose = document.createElement("p");
  loose->setInnerHTML("<b>x</b>");
  loose->setAttribute("id", "n");
  EXPECT_EQ(document.revision(), start);

  document.body()->appendChild(loose);
  EXPECT_EQ(document.revision(), start + 1);
  loose->setAttribute("id", "n");  // the same value changes nothing
  loose->firstChild()->firstChild()->setNodeValue("y");
  EXPECT_EQ(document.revision(), start + 2);
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(document.body()->innerHTML(), "<p id=\"n\"><b>y</b></p>");
}

TEST(HtmlDocumentTest, CopesWithDeepNesting) {
  // A pasted page may nest deeper than the stack would allow one frame per level: walking,
  // writing and freeing the tree must not recurse.
  const int depth = 100000;
  auto document = std::make_unique<HtmlDocument>();
  HtmlNode* parent = document->body();
  for (int level = 0; level < depth; ++level)
    parent = parent->appendChild(document->createElement("span"));
  parent->appendChild(document->createTextNode("x"));
  EXPECT_EQ(document->getElementsByTagName("span").size(), static_cast<size_t>(depth));
  const QString html = document->body()->innerHTML();
  EXPECT_TRUE(html.startsWith("<span><span>"));
  EXPECT_EQ(html.indexOf('x'), depth * 6);
  EXPECT_TRUE(html.endsWith("</span></span>"));
  EXPECT_EQ(html.size(), depth * 13 + 1);
  document.reset();
}

}  // namespace
}  // namespace sv
