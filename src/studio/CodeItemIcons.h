#pragma once

namespace sv {

class ImageList;
class NamespaceDefs;

// Pictures for the code tree, drawn rather than shipped: a coloured badge with a letter for each
// kind of item the definitions name (class, method, ...), the group folders, and the marks that
// the tree lays over an item's picture (private, protected, friend, excluded). Must run before
// the tree is loaded, since the tree makes its overlaid variants of the pictures it finds then.
class CodeItemIcons {
 public:
  static void Install(ImageList& images, const NamespaceDefs& definitions);
};

}  // namespace sv
