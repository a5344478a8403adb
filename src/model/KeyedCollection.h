#pragma once

#include <QHash>
#include <QString>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "model/Error.h"

namespace sv {

// A place in a collection for Add: a one-based index or a key.
using CollectionPos = std::variant<std::monostate, int, QString>;

// An ordered, one-based collection whose optional keys compare without regard to case.
// Lookup by index and by key is constant time; inserting or removing in the middle renumbers
// the entries behind it.
template <class T>
class KeyedCollection {
  struct Entry {
    QString key;  // as given; empty when the item was added without a key
    T item;
  };

 public:
  using value_type = T;

  int Count() const { return static_cast<int>(mEntries.size()); }
  bool IsEmpty() const { return mEntries.empty(); }

  const T& Item(int index) const { return mEntries[checkedIndex(index)].item; }
  T& Item(int index) { return mEntries[checkedIndex(index)].item; }
  const T& Item(const QString& key) const { return mEntries[indexOfKey(key)].item; }
  T& Item(const QString& key) { return mEntries[indexOfKey(key)].item; }

  bool Contains(const QString& key) const { return mIndex.contains(fold(key)); }
  // The one-based index of a key, or 0 when absent.
  int IndexOf(const QString& key) const {
    auto it = mIndex.constFind(fold(key));
    return it == mIndex.constEnd() ? 0 : static_cast<int>(*it) + 1;
  }
  std::optional<T> Find(const QString& key) const {
    auto it = mIndex.constFind(fold(key));
    if (it == mIndex.constEnd()) return std::nullopt;
    return mEntries[*it].item;
  }
  const QString& KeyAt(int index) const { return mEntries[checkedIndex(index)].key; }

  // Adds an item, optionally under a key, at the end or before/after an index or key.
  void Add(T item, const QString& key = {}, const CollectionPos& before = {},
           const CollectionPos& after = {}) {
    if (!key.isEmpty() && Contains(key))
      Raise(ErrorNumber::DuplicateKey,
            QStringLiteral("This key is already associated with an element of this collection"));
    if (!std::holds_alternative<std::monostate>(before) &&
        !std::holds_alternative<std::monostate>(after))
      Raise(ErrorNumber::InvalidCall, QStringLiteral("Invalid procedure call or argument"));
    std::size_t at = mEntries.size();
    if (!std::holds_alternative<std::monostate>(before)) at = positionOf(before);
    if (!std::holds_alternative<std::monostate>(after)) at = positionOf(after) + 1;
    mEntries.insert(mEntries.begin() + static_cast<std::ptrdiff_t>(at),
                    Entry{key, std::move(item)});
    if (at + 1 == mEntries.size()) {
      if (!key.isEmpty()) mIndex.insert(fold(key), at);
    } else {
      reindexFrom(at);
    }
  }

  void Remove(int index) { removeAt(checkedIndex(index)); }
  void Remove(const QString& key) { removeAt(indexOfKey(key)); }
  void Clear() {
    mEntries.clear();
    mIndex.clear();
  }

  class const_iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = const T*;
    using reference = const T&;
    explicit const_iterator(typename std::vector<Entry>::const_iterator it) : mIt(it) {}
    const T& operator*() const { return mIt->item; }
    const T* operator->() const { return &mIt->item; }
    const_iterator& operator++() {
      ++mIt;
      return *this;
    }
    const_iterator operator++(int) {
      auto old = *this;
      ++mIt;
      return old;
    }
    bool operator==(const const_iterator& other) const { return mIt == other.mIt; }

   private:
    typename std::vector<Entry>::const_iterator mIt;
  };
  const_iterator begin() const { return const_iterator(mEntries.begin()); }
  const_iterator end() const { return const_iterator(mEntries.end()); }

 private:
  static QString fold(const QString& key) { return key.toLower(); }

  std::size_t checkedIndex(int index) const {
    if (index < 1 || index > Count())
      Raise(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
    return static_cast<std::size_t>(index - 1);
  }
  std::size_t indexOfKey(const QString& key) const {
    auto it = mIndex.constFind(fold(key));
    if (it == mIndex.constEnd())
      Raise(ErrorNumber::InvalidCall, QStringLiteral("Invalid procedure call or argument"));
    return *it;
  }
  std::size_t positionOf(const CollectionPos& pos) const {
    if (const int* index = std::get_if<int>(&pos)) return checkedIndex(*index);
    return indexOfKey(std::get<QString>(pos));
  }
  void removeAt(std::size_t at) {
    if (!mEntries[at].key.isEmpty()) mIndex.remove(fold(mEntries[at].key));
    mEntries.erase(mEntries.begin() + static_cast<std::ptrdiff_t>(at));
    reindexFrom(at);
  }
  // Renumbers the keyed entries from a position on; those before it keep their place.
  void reindexFrom(std::size_t from) {
    for (std::size_t i = from; i < mEntries.size(); ++i)
      if (!mEntries[i].key.isEmpty()) mIndex.insert(fold(mEntries[i].key), i);
  }

  std::vector<Entry> mEntries;
  QHash<QString, std::size_t> mIndex;  // folded key -> zero-based position
};

}  // namespace sv
