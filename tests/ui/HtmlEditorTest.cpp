#include "ui/HtmlEditor.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "model/Error.h"
#include "support/QtPrinters.h"
#include "ui/Keys.h"

namespace sv {
namespace {

// An editor with its events written down in order.
struct LoggedEditor {
  LoggedEditor() {
    QObject::connect(&editor, &HtmlEditor::Change, [this] { events << "Change"; });
    QObject::connect(&editor, &HtmlEditor::DocumentComplete,
                     [this] { events << "DocumentComplete"; });
    QObject::connect(&editor, &HtmlEditor::CommandClick,
                     [this](const QString& key) { events << "CommandClick " + key; });
    QObject::connect(&editor, &HtmlEditor::documentChanged, [this] { ++redraws; });
  }
  QString Take() {
    const QString text = events.join(", ");
    events.clear();
    return text;
  }
  HtmlEditor editor;
  QStringList events;
  int redraws = 0;
};

TEST(HtmlEditorTest, TypingGoesToTheEndOfTheTextAndRaisesChange) {
  LoggedEditor e;
  e.editor.userType("Hello");
  EXPECT_EQ(e.editor.BodyHTML(), "Hello");
  e.editor.userType(" world & more");
  EXPECT_EQ(e.editor.BodyHTML(), "Hello world &amp; more");
  EXPECT_EQ(e.Take(), "Change, Change");

  // Code loads content without events; the caret goes into the last paragraph.
  e.editor.setBodyHTML("<p>One</p><p>Two<b>bold</b></p>");
  EXPECT_EQ(e.Take(), "");
  e.editor.userType("er\nnext");
  EXPECT_EQ(e.editor.BodyHTML(), "<p>One</p><p>Two<b>bolder<br>next</b></p>");
  EXPECT_EQ(e.editor.BodyText(), "OneTwoboldernext");
  EXPECT_EQ(e.Take(), "Change");

  // A table is no place to type into: the text follows it.
  e.editor.setBodyHTML("<table><tbody><tr><td>c</td></tr></tbody></table>");
  e.editor.userType("after");
  EXPECT_EQ(e.editor.BodyHTML(), "<table><tbody><tr><td>c</td></tr></tbody></table>after");
  e.editor.userType("");
  EXPECT_EQ(e.Take(), "Change");
}

TEST(HtmlEditorTest, EditsPostedByTheViewRaiseChangeButNoRedraw) {
  LoggedEditor e;
  e.editor.setBodyHTML("<p>x</p>");
  const int redraws = e.redraws;
  EXPECT_GT(redraws, 0);
  e.editor.userSetBodyHTML("<p>xy</p>");
  EXPECT_EQ(e.editor.BodyHTML(), "<p>xy</p>");
  EXPECT_EQ(e.redraws, redraws);
  // The view posting what the editor holds already is no edit, in whatever markup.
  e.editor.userSetBodyHTML("<p>xy</p>");
  e.editor.userSetBodyHTML("<P>xy");
  EXPECT_EQ(e.Take(), "Change");

  e.editor.LoadDocument("<html><head><title>t</title></head><body>new</body></html>");
  EXPECT_EQ(e.Take(), "DocumentComplete");
  EXPECT_EQ(e.editor.BodyHTML(), "new");
  EXPECT_EQ(e.editor.DocumentHTML(), "<html><head><title>t</title></head><body>new</body></html>");
  e.editor.userClickCommand("InsertCode");
  EXPECT_EQ(e.Take(), "CommandClick InsertCode");
}

TEST(HtmlEditorTest, SelectionIsReplacedAndDeleted) {
  LoggedEditor e;
  e.editor.setBodyHTML("<p>one</p><p>two</p><p>three</p>");
  HtmlElement* body = e.editor.Document().body();
  e.editor.SelectNode(body->children()[1]);
  EXPECT_EQ(e.editor.SelectedHTML(), "<p>two</p>");
  e.editor.setSelectedHTML("<pre>code</pre><p>x");
  EXPECT_EQ(e.editor.BodyHTML(), "<p>one</p><pre>code</pre><p>x</p><p>three</p>");
  // The caret stands after what was inserted.
  EXPECT_EQ(e.editor.SelectionContainer(), body);
  EXPECT_EQ(e.editor.SelectionStart(), 3);
  EXPECT_EQ(e.editor.SelectedHTML(), "");
  e.editor.setSelectedHTML("<hr>");
  EXPECT_EQ(e.editor.BodyHTML(), "<p>one</p><pre>code</pre><p>x</p><hr><p>three</p>");
  EXPECT_EQ(e.Take(), "Change, Change");

  e.editor.userSelectAll();
  e.editor.userType("all new");
  EXPECT_EQ(e.editor.BodyHTML(), "all new");

  // Backspace takes one character, or a whole element that holds nothing else.
  e.editor.setBodyHTML("ab<i>c</i>");
  e.editor.CollapseToEnd();
  EXPECT_TRUE(e.editor.userPressKey(KeyCode::Back));
  EXPECT_EQ(e.editor.BodyHTML(), "ab");
  EXPECT_TRUE(e.editor.userPressKey(KeyCode::Back));
  EXPECT_TRUE(e.editor.userPressKey(KeyCode::Back));
  EXPECT_EQ(e.editor.BodyHTML(), "");
  EXPECT_FALSE(e.editor.userPressKey(KeyCode::Back));
  EXPECT_EQ(e.Take(), "Change, Change, Change, Change");

  e.editor.setBodyHTML("<p>keep</p><p>drop</p>");
  EXPECT_FALSE(e.editor.userPressKey(KeyCode::Delete));
  e.editor.SelectNode(e.editor.Document().body()->lastChild());
  EXPECT_TRUE(e.editor.userPressKey(KeyCode::Delete));
  EXPECT_FALSE(e.editor.userPressKey(KeyCode::Escape));
  EXPECT_EQ(e.editor.BodyHTML(), "<p>keep</p>");

  // A selection in a page that was replaced falls back to the end of the text.
  HtmlNode* old = e.editor.Document().body()->firstChild();
  e.editor.SelectNode(old);
  e.editor.setBodyHTML("fresh");
  EXPECT_EQ(e.editor.SelectionContainer(), e.editor.Document().body());
  EXPECT_EQ(e.editor.SelectionStart(), 1);
  HtmlDocument other;
  EXPECT_THROW(e.editor.Select(other.body(), 0, 0), Error);
}

TEST(HtmlEditorTest, FormattingCommandsWorkOnTheSelection) {
  LoggedEditor e;
  e.editor.setBodyHTML("<p>plain text</p>");
  HtmlElement* p = e.editor.Document().body()->children()[0];
  // Nothing selected: nothing to colour.
  e.editor.SetForeColorByName("red");
  EXPECT_EQ(e.Take(), "");

  e.editor.Select(p, 0, 1);
  e.editor.SetForeColorByName("red");
  EXPECT_EQ(e.editor.BodyHTML(), "<p><font color=\"red\">plain text</font></p>");
  EXPECT_EQ(e.editor.GetForeColorName(), "red");
  e.editor.SetFillColorByName("yellow");
  EXPECT_EQ(e.editor.BodyHTML(),
            "<p><span style=\"background-color: yellow;\"><font color=\"red\">plain text</font>"
            "</span></p>");
  EXPECT_EQ(e.editor.GetFillColorName(), "yellow");
  EXPECT_EQ(e.editor.GetForeColorName(), "");
  EXPECT_TRUE(e.editor.ClickTool("Bold"));
  EXPECT_EQ(e.Take(), "Change, Change, Change");
  EXPECT_TRUE(e.editor.ClickTool("InsertUnorderedList"));
  EXPECT_EQ(e.editor.BodyHTML(),
            "<p><ul><li><b><span style=\"background-color: yellow;\"><font color=\"red\">plain "
            "text</font></span></b></li></ul></p>");
  EXPECT_FALSE(e.editor.ClickTool("Sparkle"));

  e.editor.setBodyHTML("x");
  e.editor.InsertTable(2, 2);
  EXPECT_EQ(e.editor.BodyHTML(),
            "x<table border=\"1\"><tbody><tr><td>&nbsp;</td><td>&nbsp;</td></tr>"
            "<tr><td>&nbsp;</td><td>&nbsp;</td></tr></tbody></table>");
  EXPECT_TRUE(e.editor.ClickTool("insertHorizontalRule"));
  EXPECT_TRUE(e.editor.BodyHTML().endsWith("</table><hr>"));
  EXPECT_THROW(e.editor.InsertTable(0, 3), Error);
  EXPECT_EQ(e.Take(), "Change, Change, Change");
}

}  // namespace
}  // namespace sv
