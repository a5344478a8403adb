#include "html/HtmlNode.h"

#include <algorithm>

#include "model/Error.h"
#include "html/HtmlDocument.h"
#include "html/HtmlElement.h"

namespace sv {

HtmlNode::HtmlNode(HtmlNodeType type, HtmlDocument* owner, QString value)
    : mType(type), mOwner(owner), mValue(std::move(value)) {}

HtmlNode::~HtmlNode() {
  // The subtree is freed from a work list, not by nested destructors, so that a deep tree cannot
  // exhaust the stack. Nodes someone else still holds keep their children and lose their parent.
  std::vector<std::shared_ptr<HtmlNode>> pending = std::move(mChildren);
  while (!pending.empty()) {
    std::shared_ptr<HtmlNode> node = std::move(pending.back());
    pending.pop_back();
    node->mParent = nullptr;
    if (node.use_count() > 1) continue;
    for (auto& child : node->mChildren) pending.push_back(std::move(child));
    node->mChildren.clear();
  }
}

QString HtmlNode::nodeName() const {
  switch (mType) {
    case HtmlNodeType::Document:
      return QStringLiteral("#document");
    case HtmlNodeType::Text:
      return QStringLiteral("#text");
    case HtmlNodeType::Comment:
      return QStringLiteral("#comment");
    case HtmlNodeType::Element:
      break;
  }
  return {};
}

void HtmlNode::setConnected(bool connected) {
  std::vector<HtmlNode*> pending(1, this);
  while (!pending.empty()) {
    HtmlNode* node = pending.back();
    pending.pop_back();
    node->mConnected = connected;
    for (const auto& child : node->mChildren) pending.push_back(child.get());
  }
}

HtmlElement* HtmlNode::parentElement() const {
  if (!mParent || !mParent->isElement()) return nullptr;
  return static_cast<HtmlElement*>(mParent);
}

HtmlNode* HtmlNode::firstChild() const {
  return mChildren.empty() ? nullptr : mChildren.front().get();
}

HtmlNode* HtmlNode::lastChild() const {
  return mChildren.empty() ? nullptr : mChildren.back().get();
}

int HtmlNode::indexInParent() const {
  if (!mParent) return -1;
  const auto& siblings = mParent->mChildren;
  const auto it = std::find_if(siblings.begin(), siblings.end(),
                               [this](const auto& sibling) { return sibling.get() == this; });
  return static_cast<int>(it - siblings.begin());
}

HtmlNode* HtmlNode::previousSibling() const {
  const int index = indexInParent();
  return index > 0 ? mParent->mChildren[index - 1].get() : nullptr;
}

HtmlNode* HtmlNode::nextSibling() const {
  const int index = indexInParent();
  if (index < 0 || index + 1 >= mParent->childCount()) return nullptr;
  return mParent->mChildren[index + 1].get();
}

bool HtmlNode::contains(const HtmlNode* other) const {
  for (const HtmlNode* node = other; node; node = node->mParent)
    if (node == this) return true;
  return false;
}

void HtmlNode::setNodeValue(const QString& value) {
  if (mType != HtmlNodeType::Text && mType != HtmlNodeType::Comment) return;
  if (mValue == value) return;
  mValue = value;
  changed();
}

QString HtmlNode::textContent() const {
  if (mType == HtmlNodeType::Text) return mValue;
  if (mType == HtmlNodeType::Comment) return {};
  QString text;
  for (const auto& child : mChildren)
    if (child->mType != HtmlNodeType::Comment) text += child->textContent();
  return text;
}

void HtmlNode::setTextContent(const QString& text) {
  if (mType == HtmlNodeType::Text || mType == HtmlNodeType::Comment) {
    setNodeValue(text);
    return;
  }
  clearChildren();
  if (!text.isEmpty())
    appendChild(std::shared_ptr<HtmlNode>(new HtmlNode(HtmlNodeType::Text, mOwner, text)));
}

void HtmlNode::checkInsertable(const HtmlNode& child) const {
  if (mType == HtmlNodeType::Text || mType == HtmlNodeType::Comment)
    Raise(ErrorNumber::InvalidCall,
          QStringLiteral("A %1 node cannot have children").arg(nodeName()));
  if (child.mType == HtmlNodeType::Document)
    Raise(ErrorNumber::InvalidCall, QStringLiteral("A document cannot be inserted into a tree"));
  // A childless node can only hold itself; the walk up is skipped for the common case.
  if (&child == this || (!child.mChildren.empty() && child.contains(this)))
    Raise(ErrorNumber::InvalidCall, QStringLiteral("A node cannot be inserted into itself"));
}

HtmlNode* HtmlNode::appendChild(std::shared_ptr<HtmlNode> child) {
  return insertBefore(std::move(child), nullptr);
}

HtmlNode* HtmlNode::insertBefore(std::shared_ptr<HtmlNode> child, HtmlNode* reference) {
  if (!child) RaiseObjectRequired();
  if (reference && reference->mParent != this)
    Raise(ErrorNumber::SubscriptOutOfRange,
          QStringLiteral("The reference node is no child of this %1").arg(nodeName()));
  if (reference == child.get()) return child.get();
  HtmlNode* inserted = child.get();
  insertChildren(reference ? reference->indexInParent() : childCount(), {std::move(child)});
  return inserted;
}

void HtmlNode::insertChildren(int index, const std::vector<std::shared_ptr<HtmlNode>>& nodes) {
  if (index < 0 || index > childCount())
    Raise(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
  for (const auto& node : nodes) checkInsertable(*node);
  // The nodes go before the first child from `index` on that is not itself being moved.
  const HtmlNode* anchor = nullptr;
  for (int at = index; at < childCount() && !anchor; ++at) {
    const HtmlNode* candidate = mChildren[at].get();
    const bool moving = std::any_of(nodes.begin(), nodes.end(),
                                    [&](const auto& node) { return node.get() == candidate; });
    if (!moving) anchor = candidate;
  }
  for (const auto& node : nodes)
    if (node->mParent) node->mParent->detachAt(node->indexInParent());
  auto at = anchor ? mChildren.begin() + anchor->indexInParent() : mChildren.end();
  for (const auto& node : nodes) {
    node->mParent = this;
    if (mConnected) node->setConnected(true);
    at = mChildren.insert(at, node) + 1;
  }
  if (!nodes.empty()) changed();
}

std::shared_ptr<HtmlNode> HtmlNode::detachAt(int index) {
  auto node = mChildren[index];
  mChildren.erase(mChildren.begin() + index);
  node->mParent = nullptr;
  changed();
  if (node->mConnected) node->setConnected(false);
  return node;
}

std::shared_ptr<HtmlNode> HtmlNode::removeChild(HtmlNode* child) {
  if (!child || child->mParent != this)
    Raise(ErrorNumber::SubscriptOutOfRange,
          QStringLiteral("The node to remove is no child of this %1").arg(nodeName()));
  return detachAt(child->indexInParent());
}

std::shared_ptr<HtmlNode> HtmlNode::removeNode(bool deep) {
  if (!mParent) return shared_from_this();
  HtmlNode* parent = mParent;
  const int index = indexInParent();
  if (!deep && !mChildren.empty()) {
    const auto children = mChildren;
    parent->insertChildren(index + 1, children);
  }
  return parent->detachAt(index);
}

void HtmlNode::clearChildren() {
  if (mChildren.empty()) return;
  for (const auto& child : mChildren) {
    child->mParent = nullptr;
    if (child->mConnected) child->setConnected(false);
  }
  mChildren.clear();
  changed();
}

std::vector<HtmlElement*> HtmlNode::descendantElements() const {
  std::vector<HtmlElement*> found;
  // Document order without recursion: a deep tree must not exhaust the stack.
  std::vector<const HtmlNode*> pending(1, this);
  while (!pending.empty()) {
    const HtmlNode* node = pending.back();
    pending.pop_back();
    if (node != this && node->isElement())
      found.push_back(static_cast<HtmlElement*>(const_cast<HtmlNode*>(node)));
    for (auto it = node->mChildren.rbegin(); it != node->mChildren.rend(); ++it)
      pending.push_back(it->get());
  }
  return found;
}

std::vector<HtmlElement*> HtmlNode::getElementsByTagName(const QString& tagName) const {
  std::vector<HtmlElement*> found = descendantElements();
  if (tagName == QLatin1String("*")) return found;
  std::erase_if(found, [&](const HtmlElement* element) {
    return element->localName().compare(tagName, Qt::CaseInsensitive) != 0;
  });
  return found;
}

HtmlElement* HtmlNode::findElementById(const QString& id) const {
  if (id.isEmpty()) return nullptr;
  for (HtmlElement* element : descendantElements())
    if (element->id() == id) return element;
  return nullptr;
}

void HtmlNode::changed() const {
  if (mConnected && mOwner) mOwner->noteChanged();
}

}  // namespace sv
