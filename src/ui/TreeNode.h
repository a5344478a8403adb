#pragma once

#include <QString>
#include <QtGlobal>
#include <memory>
#include <vector>

namespace sv {

class TreeView;

// One node of a TreeView. The tree owns its nodes: a node lives until it, an ancestor of it,
// or the whole tree is removed, and pointers to it are invalid after that. Writing a property
// from code raises no event, except Expanded, which raises what a real tree raises.
class TreeNode {
 public:
  TreeNode(const TreeNode&) = delete;
  TreeNode& operator=(const TreeNode&) = delete;
  ~TreeNode();

  // Iterates the children in order; writing the tree while iterating is not allowed.
  class ChildList {
   public:
    class iterator {
     public:
      explicit iterator(std::vector<std::unique_ptr<TreeNode>>::const_iterator it) : mIt(it) {}
      TreeNode* operator*() const { return mIt->get(); }
      iterator& operator++() {
        ++mIt;
        return *this;
      }
      bool operator==(const iterator& other) const { return mIt == other.mIt; }

     private:
      std::vector<std::unique_ptr<TreeNode>>::const_iterator mIt;
    };
    explicit ChildList(const std::vector<std::unique_ptr<TreeNode>>& nodes) : mNodes(nodes) {}
    iterator begin() const { return iterator(mNodes.begin()); }
    iterator end() const { return iterator(mNodes.end()); }
    int Count() const { return static_cast<int>(mNodes.size()); }
    // Zero-based; raises SubscriptOutOfRange outside the list.
    TreeNode* Item(int index) const;

   private:
    const std::vector<std::unique_ptr<TreeNode>>& mNodes;
  };

  TreeView* Tree() const { return mTree; }

  const QString& Key() const { return mKey; }
  // Raises DuplicateKey when another node of the tree holds the key.
  void setKey(const QString& key);
  const QString& Text() const { return mText; }
  void setText(const QString& text);
  const QString& Tag() const { return mTag; }
  void setTag(const QString& tag);
  const QString& Image() const { return mImage; }
  void setImage(const QString& key);
  // The image shown while the node is expanded; empty means Image.
  const QString& ExpandedImage() const { return mExpandedImage; }
  void setExpandedImage(const QString& key);
  bool Bold() const { return mBold; }
  void setBold(bool value);
  // 0xRRGGBB; black by default.
  quint32 ForeColor() const { return mForeColor; }
  void setForeColor(quint32 value);
  bool Checked() const { return mChecked; }
  void setChecked(bool value);

  bool Expanded() const { return mExpanded; }
  // A node with children raises Expanding (which may cancel), then Expand; collapsing raises
  // Collapse. A node without children only keeps the flag.
  void setExpanded(bool value);
  // The tree's flag for a node whose children arrive late: the loader reads it once after
  // loading and expands the node when it is set.
  bool ExpandOnLoad() const { return mExpandOnLoad; }
  void setExpandOnLoad(bool value) { mExpandOnLoad = value; }
  bool Selected() const;
  // Selecting from code raises nothing.
  void setSelected(bool value);
  // True when every ancestor is expanded.
  bool IsVisible() const;
  // Expands every collapsed ancestor, top down, raising their events.
  void EnsureVisible();

  // Null for a top-level node.
  TreeNode* Parent() const;
  TreeNode* Root() const;
  TreeNode* Child() const { return mChildren.empty() ? nullptr : mChildren.front().get(); }
  TreeNode* LastChild() const { return mChildren.empty() ? nullptr : mChildren.back().get(); }
  ChildList Children() const { return ChildList(mChildren); }
  int ChildCount() const { return static_cast<int>(mChildren.size()); }
  TreeNode* Next() const;
  TreeNode* Previous() const;
  TreeNode* FirstSibling() const;
  TreeNode* LastSibling() const;
  // Zero-based position among the siblings.
  int SiblingIndex() const { return static_cast<int>(mIndex); }
  // The texts from the top-level node down, joined by the tree's PathSeparator.
  QString FullPath() const;
  // True when `node` is this node or lies below it.
  bool Contains(const TreeNode* node) const;

 private:
  friend class TreeView;
  TreeNode(TreeView* tree, const QString& key, const QString& text, const QString& image);
  void changed();
  const std::vector<std::unique_ptr<TreeNode>>& siblings() const;

  TreeView* mTree;
  TreeNode* mParent = nullptr;  // the tree's hidden root for top-level nodes
  std::size_t mIndex = 0;       // position in mParent->mChildren
  std::vector<std::unique_ptr<TreeNode>> mChildren;
  QString mKey;
  QString mText;
  QString mTag;
  QString mImage;
  QString mExpandedImage;
  quint32 mForeColor = 0;
  bool mBold = false;
  bool mChecked = false;
  bool mExpanded = false;
  bool mExpandOnLoad = false;
};

}  // namespace sv
