#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace wayloom {

/// States by what the whole way costs at least, the least first: a heap of four children to a
/// parent, which lie in one line of the processor's cache. Costs are kept to within 1e-7 of
/// themselves.
class RoadQueue {
 public:
  struct Entry {
    float least;
    std::uint32_t state;
  };

  bool isEmpty() const { return mEntries.empty(); }
  void clear() { mEntries.clear(); }
  const Entry& first() const { return mEntries.front(); }

  void add(Entry entry) {
    std::size_t at = mEntries.size();
    mEntries.push_back(entry);
    while (at > 0 && entry.least < mEntries[(at - 1) / kChildren].least) {
      mEntries[at] = mEntries[(at - 1) / kChildren];
      at = (at - 1) / kChildren;
    }
    mEntries[at] = entry;
  }

  void removeFirst() {
    const Entry last = mEntries.back();
    mEntries.pop_back();
    const std::size_t size = mEntries.size();
    for (std::size_t at = 0; at < size;) {
      std::size_t least = kChildren * at + 1;
      const std::size_t end = std::min(least + kChildren, size);
      for (std::size_t child = least + 1; child < end; ++child) {
        if (mEntries[child].least < mEntries[least].least) least = child;
      }
      const bool isPlace = least >= size || last.least <= mEntries[least].least;
      mEntries[at] = isPlace ? last : mEntries[least];
      if (isPlace) return;
      at = least;
    }
  }

 private:
  static constexpr std::size_t kChildren = 4;

  std::vector<Entry> mEntries;
};

}  // namespace wayloom
