#pragma once

#include <QString>
#include <memory>
#include <vector>

namespace sv {

class HtmlDocument;
class HtmlElement;

enum class HtmlNodeType { Document, Element, Text, Comment };

// One node of an HtmlDocument: the document itself, an element, a run of text or a comment.
// A node owns its children; its parent is a plain back pointer. A node taken out of the tree
// lives on as long as someone holds the shared pointer that removal answers.
//
// Edits raise InvalidCall where a browser raises a hierarchy error: children on a text or
// comment node, a node inserted into itself or its own descendant.
class HtmlNode : public std::enable_shared_from_this<HtmlNode> {
 public:
  virtual ~HtmlNode();
  HtmlNode(const HtmlNode&) = delete;
  HtmlNode& operator=(const HtmlNode&) = delete;

  HtmlNodeType nodeType() const { return mType; }
  bool isElement() const { return mType == HtmlNodeType::Element; }
  // As the DOM names nodes: the tag name of an element, "#text", "#comment", "#document".
  virtual QString nodeName() const;
  HtmlDocument* ownerDocument() const { return mOwner; }
  // Whether the node hangs in its document's tree.
  bool isConnected() const { return mConnected; }

  HtmlNode* parentNode() const { return mParent; }
  // The parent when it is an element; null below the document node.
  HtmlElement* parentElement() const;
  const std::vector<std::shared_ptr<HtmlNode>>& childNodes() const { return mChildren; }
  int childCount() const { return static_cast<int>(mChildren.size()); }
  HtmlNode* firstChild() const;
  HtmlNode* lastChild() const;
  HtmlNode* previousSibling() const;
  HtmlNode* nextSibling() const;
  // The zero-based position among the parent's children; -1 without a parent.
  int indexInParent() const;
  // This node or one of its descendants.
  bool contains(const HtmlNode* other) const;

  // The data of a text or comment node; empty for the others, which ignore the setter.
  const QString& nodeValue() const { return mValue; }
  void setNodeValue(const QString& value);
  // The text of all text nodes below, in document order (comments left out).
  QString textContent() const;
  // Replaces the children with one text node (none for an empty text).
  void setTextContent(const QString& text);

  // Inserts a node as the last child, or before `reference` (a child of this node; null means
  // last). A node that hangs elsewhere is moved. Answers the inserted node.
  HtmlNode* appendChild(std::shared_ptr<HtmlNode> child);
  HtmlNode* insertBefore(std::shared_ptr<HtmlNode> child, HtmlNode* reference);
  // Inserts a run of nodes before the child at `index` (0 to childCount()).
  void insertChildren(int index, const std::vector<std::shared_ptr<HtmlNode>>& nodes);
  // Takes a child out; raises SubscriptOutOfRange when it is no child of this node.
  std::shared_ptr<HtmlNode> removeChild(HtmlNode* child);
  // Takes the node out of its parent. With deep false its children stay in the tree, in its
  // place; with true they leave with it.
  std::shared_ptr<HtmlNode> removeNode(bool deep = true);
  // Removes every child.
  void clearChildren();

  // Every element below this node, in document order.
  std::vector<HtmlElement*> descendantElements() const;
  // The elements below this node in document order whose tag matches without regard to case;
  // "*" matches every element.
  std::vector<HtmlElement*> getElementsByTagName(const QString& tagName) const;
  // The first element below this node in document order whose id is `id` (case-sensitive).
  HtmlElement* findElementById(const QString& id) const;

 protected:
  HtmlNode(HtmlNodeType type, HtmlDocument* owner, QString value = {});
  // Tells the document that its tree changed, when this node is part of it.
  void changed() const;

 private:
  friend class HtmlDocument;

  void checkInsertable(const HtmlNode& child) const;
  // Marks the node and everything below it as in or out of the document's tree.
  void setConnected(bool connected);
  std::shared_ptr<HtmlNode> detachAt(int index);

  HtmlNodeType mType;
  HtmlDocument* mOwner;
  HtmlNode* mParent = nullptr;
  std::vector<std::shared_ptr<HtmlNode>> mChildren;
  QString mValue;
  bool mConnected = false;
};

}  // namespace sv
