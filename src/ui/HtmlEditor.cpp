#include "ui/HtmlEditor.h"

#include <QSet>
#include <algorithm>

#include "model/Error.h"
#include "html/HtmlSerializer.h"
#include "ui/Keys.h"

namespace sv {

namespace {

// Elements a caret at the end of the text does not enter: they hold no typed text themselves.
bool takesText(const HtmlNode& node) {
  static const QSet<QString> closed = {
      QStringLiteral("table"),    QStringLiteral("tbody"),    QStringLiteral("thead"),
      QStringLiteral("tfoot"),    QStringLiteral("tr"),       QStringLiteral("colgroup"),
      QStringLiteral("select"),   QStringLiteral("script"),   QStringLiteral("style"),
      QStringLiteral("textarea"), QStringLiteral("iframe"),   QStringLiteral("object"),
      QStringLiteral("template"), QStringLiteral("noscript"), QStringLiteral("head")};
  if (!node.isElement()) return false;
  const auto& element = static_cast<const HtmlElement&>(node);
  return element.elementNamespace() == HtmlNamespace::Html && !element.isVoid() &&
         !closed.contains(element.localName());
}

// The last child that is not a comment, or null.
HtmlNode* lastContentChild(const HtmlNode& node, int before) {
  for (int index = std::min(before, node.childCount()) - 1; index >= 0; --index) {
    HtmlNode* child = node.childNodes()[index].get();
    if (child->nodeType() != HtmlNodeType::Comment) return child;
  }
  return nullptr;
}

}  // namespace

class HtmlEditor::Batch {
 public:
  Batch(HtmlEditor& editor, bool quiet) : mEditor(editor), mQuiet(quiet) {
    if (mEditor.mBatchDepth++ == 0) mEditor.mBatchChanged = false;
  }
  ~Batch() {
    if (--mEditor.mBatchDepth > 0) return;
    if (mEditor.mBatchChanged && !mQuiet) emit mEditor.documentChanged();
  }
  Batch(const Batch&) = delete;
  Batch& operator=(const Batch&) = delete;

 private:
  HtmlEditor& mEditor;
  bool mQuiet;
};

HtmlEditor::HtmlEditor(QObject* parent) : QObject(parent) {
  mDocument.setChangeHandler([this] {
    if (mBatchDepth > 0)
      mBatchChanged = true;
    else
      emit documentChanged();
  });
}

HtmlEditor::~HtmlEditor() {
  mDocument.setChangeHandler({});
}

void HtmlEditor::LoadDocument(const QString& html) {
  {
    Batch batch(*this, false);
    mDocument.write(html);
    CollapseToEnd();
  }
  emit DocumentComplete();
}

void HtmlEditor::setBaseURL(const QString& value) {
  if (mBaseURL == value) return;
  mBaseURL = value;
  emit stateChanged();
}

QString HtmlEditor::BodyHTML() const {
  const HtmlElement* body = mDocument.body();
  return body ? body->innerHTML() : QString();
}

void HtmlEditor::setBodyHTML(const QString& html) {
  HtmlElement* body = mDocument.body();
  if (!body) Raise(ErrorNumber::ObjectRequired, QStringLiteral("The document has no body"));
  Batch batch(*this, false);
  body->setInnerHTML(html);
  CollapseToEnd();
}

QString HtmlEditor::BodyText() const {
  const HtmlElement* body = mDocument.body();
  return body ? body->textContent() : QString();
}

QString HtmlEditor::SelectedHTML() const {
  const Range range = selection();
  QString html;
  for (int index = range.start; index < range.end; ++index) {
    html += HtmlSerializer::Outer(*range.container->childNodes()[index]);
  }
  return html;
}

void HtmlEditor::setSelectedHTML(const QString& html) {
  edit([&] {
    const Position caret = deleteSelection();
    const HtmlElement* context = caret.container->isElement()
                                     ? static_cast<const HtmlElement*>(caret.container)
                                     : mDocument.body();
    const auto nodes = mDocument.parseFragment(html, *context);
    caret.container->insertChildren(caret.index, nodes);
    setCaret(caret.container, caret.index + static_cast<int>(nodes.size()));
  });
}

void HtmlEditor::Select(HtmlNode* container, int start, int end) {
  if (!container || container->ownerDocument() != &mDocument || !container->isConnected())
    Raise(ErrorNumber::InvalidCall, QStringLiteral("The selection must lie in the editor's page"));
  mSelectionContainer = container->weak_from_this();
  mSelectionStart = std::clamp(start, 0, container->childCount());
  mSelectionEnd = std::clamp(end, mSelectionStart, container->childCount());
}

void HtmlEditor::SelectNode(HtmlNode* node) {
  if (!node || !node->parentNode())
    Raise(ErrorNumber::InvalidCall, QStringLiteral("Only a node in the page can be selected"));
  const int index = node->indexInParent();
  Select(node->parentNode(), index, index + 1);
}

void HtmlEditor::CollapseToEnd() {
  mSelectionContainer.reset();
  mSelectionStart = mSelectionEnd = 0;
}

HtmlNode* HtmlEditor::SelectionContainer() const {
  return selection().container;
}

int HtmlEditor::SelectionStart() const {
  return selection().start;
}

int HtmlEditor::SelectionEnd() const {
  return selection().end;
}

void HtmlEditor::setVisible(bool value) {
  if (mVisible == value) return;
  mVisible = value;
  emit stateChanged();
}

void HtmlEditor::setFocused(bool value) {
  if (mFocused == value) return;
  mFocused = value;
  emit stateChanged();
}

void HtmlEditor::userType(const QString& text) {
  if (text.isEmpty()) return;
  edit([&] { insertText(text); });
}

void HtmlEditor::userSetBodyHTML(const QString& html) {
  HtmlElement* body = mDocument.body();
  if (!body) Raise(ErrorNumber::ObjectRequired, QStringLiteral("The document has no body"));
  const QString before = body->innerHTML();
  if (before == html) return;
  {
    Batch batch(*this, true);
    body->setInnerHTML(html);
    CollapseToEnd();
  }
  // Other markup for the same content ("<P>x" for "<p>x</p>") is no edit.
  if (body->innerHTML() != before) emit Change();
}

void HtmlEditor::userSelectAll() {
  if (HtmlElement* body = mDocument.body()) Select(body, 0, body->childCount());
}

bool HtmlEditor::userPressKey(int keyCode) {
  if (keyCode != KeyCode::Back && keyCode != KeyCode::Delete) return false;
  return edit([&] {
    const Range range = selection();
    if (range.start < range.end) {
      deleteSelection();
      return;
    }
    if (keyCode == KeyCode::Back) deleteBackward({range.container, range.start});
  });
}

void HtmlEditor::userClickCommand(const QString& key) {
  emit CommandClick(key);
}

bool HtmlEditor::edit(const std::function<void()>& body) {
  const quint64 before = mDocument.revision();
  {
    Batch batch(*this, false);
    body();
  }
  if (mDocument.revision() == before) return false;
  emit Change();
  return true;
}

HtmlEditor::Range HtmlEditor::selection() const {
  const auto container = mSelectionContainer.lock();
  if (!container || !container->isConnected() || container->ownerDocument() != &mDocument) {
    const Position end = endOfText();
    return {end.container, end.index, end.index};
  }
  const int count = container->childCount();
  const int start = std::clamp(mSelectionStart, 0, count);
  return {container.get(), start, std::clamp(mSelectionEnd, start, count)};
}

HtmlEditor::Position HtmlEditor::endOfText() const {
  HtmlNode* container = mDocument.body();
  if (!container) container = &mDocument.documentNode();
  while (HtmlNode* last = lastContentChild(*container, container->childCount())) {
    if (!takesText(*last)) break;
    container = last;
  }
  return {container, container->childCount()};
}

void HtmlEditor::setCaret(HtmlNode* container, int index) {
  Select(container, index, index);
}

HtmlEditor::Position HtmlEditor::deleteSelection() {
  const Range range = selection();
  std::vector<HtmlNode*> doomed;
  for (int index = range.start; index < range.end; ++index)
    doomed.push_back(range.container->childNodes()[index].get());
  for (HtmlNode* node : doomed) range.container->removeChild(node);
  setCaret(range.container, range.start);
  return {range.container, range.start};
}

bool HtmlEditor::deleteBackward(const Position& caret) {
  HtmlNode* const body = mDocument.body();
  HtmlNode* container = caret.container;
  int index = caret.index;
  HtmlNode* node = lastContentChild(*container, index);
  // Nothing before the caret in its element: what precedes the element is next.
  while (!node && container != body && container->parentNode()) {
    index = container->indexInParent();
    container = container->parentNode();
    node = lastContentChild(*container, index);
  }
  if (!node) return false;
  // The last character stands in the last text below what precedes the caret.
  while (node->isElement() && !static_cast<HtmlElement*>(node)->isVoid()) {
    HtmlNode* last = lastContentChild(*node, node->childCount());
    if (!last) break;
    node = last;
  }
  if (node->nodeType() == HtmlNodeType::Text) {
    QString text = node->nodeValue();
    const bool pair = text.size() >= 2 && text.back().isLowSurrogate();
    text.chop(pair ? 2 : 1);
    if (!text.isEmpty()) {
      node->setNodeValue(text);
      return true;
    }
  }
  // The emptied node goes, and with it the elements that held nothing else.
  HtmlNode* gone = node;
  while (gone->parentNode() != body && gone->parentNode()->childCount() == 1)
    gone = gone->parentNode();
  HtmlNode* parent = gone->parentNode();
  const int goneIndex = gone->indexInParent();
  if (gone->contains(container))
    setCaret(parent, goneIndex);
  else if (parent == container && goneIndex < index)
    setCaret(container, index - 1);
  else
    setCaret(container, index);
  gone->removeNode(true);
  return true;
}

void HtmlEditor::insertNodes(const std::vector<std::shared_ptr<HtmlNode>>& nodes) {
  const Position caret = deleteSelection();
  caret.container->insertChildren(caret.index, nodes);
  setCaret(caret.container, caret.index + static_cast<int>(nodes.size()));
}

void HtmlEditor::insertText(const QString& text) {
  const Position caret = deleteSelection();
  HtmlNode* container = caret.container;
  int at = caret.index;
  QString normal = text;
  normal.replace(QLatin1String("\r\n"), QLatin1String("\n"))
      .replace(QLatin1Char('\r'), QLatin1Char('\n'));
  const QStringList lines = normal.split(QLatin1Char('\n'));
  for (qsizetype line = 0; line < lines.size(); ++line) {
    if (line > 0) container->insertChildren(at++, {mDocument.createElement(QStringLiteral("br"))});
    if (lines[line].isEmpty()) continue;
    HtmlNode* before = at > 0 ? container->childNodes()[at - 1].get() : nullptr;
    if (before && before->nodeType() == HtmlNodeType::Text) {
      before->setNodeValue(before->nodeValue() + lines[line]);
      continue;
    }
    container->insertChildren(at++, {mDocument.createTextNode(lines[line])});
  }
  setCaret(container, at);
}

}  // namespace sv
