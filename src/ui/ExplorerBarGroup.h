#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "ui/ExplorerBarItem.h"

namespace sv {

class ExplorerBar;

// A titled group of an ExplorerBar, owned by it, holding items keyed without regard to case.
// Writing a property from code raises nothing.
class ExplorerBarGroup {
 public:
  ExplorerBarGroup(const ExplorerBarGroup&) = delete;
  ExplorerBarGroup& operator=(const ExplorerBarGroup&) = delete;
  ~ExplorerBarGroup();

  ExplorerBar* Bar() const { return mBar; }
  const QString& Key() const { return mKey; }
  const QString& Caption() const { return mCaption; }
  void setCaption(const QString& value);
  // A key of the bar's image list, drawn in the title; empty for none.
  const QString& Icon() const { return mIcon; }
  void setIcon(const QString& value);
  bool Visible() const { return mVisible; }
  void setVisible(bool value);
  bool Enabled() const { return mEnabled; }
  void setEnabled(bool value);
  bool Expanded() const { return mExpanded; }
  void setExpanded(bool value);

  // Adds an item at the end; a key already in the group raises DuplicateKey.
  ExplorerBarItem* AddItem(const QString& key, const QString& caption = {},
                           const QString& image = {});
  // Removes an item; a removed selection is cleared without an event. A missing key raises
  // SubscriptOutOfRange.
  void RemoveItem(const QString& key);
  void ClearItems();
  // Null when the group has no item of that key.
  ExplorerBarItem* FindItem(const QString& key) const;
  // Raises SubscriptOutOfRange for a missing key.
  ExplorerBarItem* Item(const QString& key) const;
  // Zero-based; raises SubscriptOutOfRange outside the list.
  ExplorerBarItem* Item(int index) const;
  int ItemCount() const { return static_cast<int>(mItems.size()); }
  std::vector<ExplorerBarItem*> Items() const;

 private:
  friend class ExplorerBar;
  friend class ExplorerBarItem;
  ExplorerBarGroup(ExplorerBar* bar, const QString& key, const QString& caption)
      : mBar(bar), mKey(key), mCaption(caption) {}
  void changed();
  void remove(std::size_t index);

  ExplorerBar* mBar;
  QString mKey;
  QString mCaption;
  QString mIcon;
  bool mVisible = true;
  bool mEnabled = true;
  bool mExpanded = true;
  std::vector<std::unique_ptr<ExplorerBarItem>> mItems;
};

}  // namespace sv
