#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace wayloom {

/// The fewest edits that make one word of another: a letter added, left out, taken for another, or
/// two neighbours swapped. By H. Hyyrö's bit-parallel algorithm (2003), of which each letter of
/// `word` takes a bit: at most 63 letters, of a to z only.
class EditDistance {
 public:
  explicit EditDistance(std::string_view word);

  int to(std::string_view other) const;

 private:
  std::uint64_t mPlaces[26] = {};
  std::size_t mLength;
};

/// Whether misspellings are looked for in a word: only where all of its letters are a to z.
bool isPlainWord(std::string_view word);

/// How many edits a misspelt word may be away from the one that was meant.
int mostEdits(std::string_view word);

/// At most `limit` of the words of one length, one after the other in `words`, that are `edits`
/// away from `word` and begin like it, or end like it where that tells enough; in their order.
std::vector<std::string> similarWords(std::string_view word, int edits, std::string_view words,
                                      std::size_t length, std::size_t limit);

}  // namespace wayloom
