#include "studio/HtmlEditorRenderer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>

#include "StudioTestKit.h"

namespace sv {
namespace {

class HtmlEditorRendererTest : public ::testing::Test {
 protected:
  HtmlEditorRendererTest() {
    QObject::connect(&mEditor, &HtmlEditor::Change, [this] { ++mChanges; });
    mView.resize(400, 300);
    mView.show();
    mView.setFocus();
  }

  void type(const QString& text) { QTest::keyClicks(&mView, text); }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&mView, key, modifiers);
  }

  HtmlEditor mEditor;
  HtmlEditorRenderer mView{&mEditor};
  int mChanges = 0;
};

TEST_F(HtmlEditorRendererTest, WhatAPersonWritesReachesTheEditorAsPlainHtml) {
  type(QStringLiteral("Plain "));
  press(Qt::Key_B, Qt::ControlModifier);
  type(QStringLiteral("strong"));
  press(Qt::Key_B, Qt::ControlModifier);
  type(QStringLiteral(" and "));
  press(Qt::Key_I, Qt::ControlModifier);
  press(Qt::Key_U, Qt::ControlModifier);
  type(QStringLiteral("both"));
  EXPECT_EQ(mEditor.BodyHTML(), "Plain <b>strong</b> and <i><u>both</u></i>");
  EXPECT_GT(mChanges, 0);
  press(Qt::Key_I, Qt::ControlModifier);
  press(Qt::Key_U, Qt::ControlModifier);

  mView.clear();
  type(QStringLiteral("a < b & c"));
  press(Qt::Key_Return);
  type(QStringLiteral("second"));
  press(Qt::Key_Return);
  EXPECT_EQ(mEditor.BodyHTML(), "<p>a &lt; b &amp; c</p><p>second</p>")
      << "an empty last line is only the caret";

  // A page pasted from a browser brings its links, not its styles.
  mView.clear();
  auto* pasted = new QMimeData;
  pasted->setHtml(QStringLiteral(
      "<div style=\"color:red;font-family:Arial\">See <a href=\"Circle.html\" "
      "style=\"color:blue\">Circle</a> <span style=\"font-weight:700\">now</span></div>"));
  QApplication::clipboard()->setMimeData(pasted);
  mView.paste();
  EXPECT_EQ(mEditor.BodyHTML(), "See <a href=\"Circle.html\">Circle</a> <b>now</b>");
}

TEST_F(HtmlEditorRendererTest, ContentLoadedFromCodeIsShownAndNotPostedBack) {
  mEditor.setBodyHTML(QStringLiteral("<P>Stored in <B>old</B> markup</P><ul><li>one</li></ul>"));
  EXPECT_EQ(mView.toPlainText(), "Stored in old markup\none");
  EXPECT_EQ(mChanges, 0);
  EXPECT_EQ(mEditor.BodyHTML(), "<p>Stored in <b>old</b> markup</p><ul><li>one</li></ul>");

  // The first keystroke rewrites the page in the simple form.
  mView.moveCursor(QTextCursor::End);
  type(QStringLiteral(" two"));
  EXPECT_EQ(mEditor.BodyHTML(), "<p>Stored in <b>old</b> markup</p><ul><li>one two</li></ul>");
  EXPECT_EQ(mChanges, 1 + 3) << "one Change per keystroke";

  mEditor.setVisible(false);
  EXPECT_FALSE(mView.isVisible());
  mEditor.setVisible(true);
  EXPECT_TRUE(mView.isVisible());
}

}  // namespace
}  // namespace sv
