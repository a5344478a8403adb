#include "ui/ExplorerBarGroup.h"

#include "model/Error.h"
#include "ui/ExplorerBar.h"

namespace sv {

namespace {

[[noreturn]] void missingItem() {
  Raise(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Element not found"));
}

}  // namespace

ExplorerBarGroup::~ExplorerBarGroup() = default;

void ExplorerBarGroup::changed() {
  emit mBar->groupChanged(this);
}

void ExplorerBarGroup::setCaption(const QString& value) {
  if (value == mCaption) return;
  mCaption = value;
  changed();
}

void ExplorerBarGroup::setIcon(const QString& value) {
  if (value == mIcon) return;
  mIcon = value;
  changed();
}

void ExplorerBarGroup::setVisible(bool value) {
  if (value == mVisible) return;
  mVisible = value;
  changed();
}

void ExplorerBarGroup::setEnabled(bool value) {
  if (value == mEnabled) return;
  mEnabled = value;
  changed();
}

void ExplorerBarGroup::setExpanded(bool value) {
  if (value == mExpanded) return;
  mExpanded = value;
  changed();
}

ExplorerBarItem* ExplorerBarGroup::AddItem(const QString& key, const QString& caption,
                                           const QString& image) {
  if (FindItem(key))
    Raise(ErrorNumber::DuplicateKey, QStringLiteral("Key is not unique in collection"));
  mItems.push_back(
      std::unique_ptr<ExplorerBarItem>(new ExplorerBarItem(this, key, caption, image)));
  changed();
  return mItems.back().get();
}

void ExplorerBarGroup::remove(std::size_t index) {
  mBar->forgetSelection(nullptr, mItems[index].get());
  mItems.erase(mItems.begin() + static_cast<std::ptrdiff_t>(index));
}

void ExplorerBarGroup::RemoveItem(const QString& key) {
  ExplorerBarItem* item = Item(key);
  for (std::size_t i = 0; i < mItems.size(); ++i) {
    if (mItems[i].get() != item) continue;
    remove(i);
    break;
  }
  changed();
}

void ExplorerBarGroup::ClearItems() {
  mBar->forgetSelection(this, nullptr);
  mItems.clear();
  changed();
}

ExplorerBarItem* ExplorerBarGroup::FindItem(const QString& key) const {
  for (const auto& item : mItems)
    if (item->Key().compare(key, Qt::CaseInsensitive) == 0) return item.get();
  return nullptr;
}

ExplorerBarItem* ExplorerBarGroup::Item(const QString& key) const {
  ExplorerBarItem* item = FindItem(key);
  if (!item) missingItem();
  return item;
}

ExplorerBarItem* ExplorerBarGroup::Item(int index) const {
  if (index < 0 || index >= ItemCount()) missingItem();
  return mItems[static_cast<std::size_t>(index)].get();
}

std::vector<ExplorerBarItem*> ExplorerBarGroup::Items() const {
  std::vector<ExplorerBarItem*> items;
  for (const auto& item : mItems) items.push_back(item.get());
  return items;
}

}  // namespace sv
