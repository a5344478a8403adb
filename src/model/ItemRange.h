#pragma once

#include <cstddef>
#include <iterator>

namespace sv {

// Lets range-for walk any one-based collection that answers Count() and Item(int).
template <class Collection, class Value>
class ItemIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = Value;
  using difference_type = std::ptrdiff_t;

  ItemIterator(const Collection* owner, int index) : mOwner(owner), mIndex(index) {}
  Value operator*() const { return mOwner->Item(mIndex); }
  ItemIterator& operator++() {
    ++mIndex;
    return *this;
  }
  bool operator==(const ItemIterator& other) const { return mIndex == other.mIndex; }

 private:
  const Collection* mOwner;
  int mIndex;
};

}  // namespace sv
