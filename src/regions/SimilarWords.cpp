#include "regions/SimilarWords.h"

#include <algorithm>

namespace wayloom {

namespace {

constexpr std::size_t kLongestWord = 63;
constexpr std::size_t kShortestForOneEdit = 4;
constexpr std::size_t kShortestForTwoEdits = 8;
constexpr std::size_t kShortestForOtherStart = 6;

// Few mistake the first letter. Whoever does has the end right, if the word is long enough to tell.
bool beginsOrEndsLike(std::string_view word, std::string_view other, int edits) {
  if (other.front() == word.front()) return true;
  return edits == 1 && word.size() >= kShortestForOtherStart &&
         other.ends_with(word.substr(word.size() - 3));
}

}  // namespace

EditDistance::EditDistance(std::string_view word) : mLength(word.size()) {
  for (std::size_t place = 0; place < word.size(); ++place) {
    mPlaces[static_cast<std::size_t>(word[place] - 'a')] |= std::uint64_t{1} << place;
  }
}

int EditDistance::to(std::string_view other) const {
  std::uint64_t more = ~std::uint64_t{0};
  std::uint64_t less = 0;
  std::uint64_t same = 0;
  std::uint64_t before = 0;
  int distance = static_cast<int>(mLength);
  const std::uint64_t last = std::uint64_t{1} << (mLength - 1);
  for (const char letter : other) {
    const std::uint64_t places = mPlaces[static_cast<std::size_t>(letter - 'a')];
    const std::uint64_t swapped = ((~same & places) << 1) & before;
    same = (((places & more) + more) ^ more) | places | less | swapped;
    std::uint64_t right = less | ~(same | more);
    const std::uint64_t left = same & more;
    distance += (right & last) != 0 ? 1 : 0;
    distance -= (left & last) != 0 ? 1 : 0;
    right = (right << 1) | 1;
    more = (left << 1) | ~(same | right);
    less = right & same;
    before = places;
  }
  return distance;
}

bool isPlainWord(std::string_view word) {
  return !word.empty() && word.size() <= kLongestWord &&
         std::all_of(word.begin(), word.end(),
                     [](char letter) { return letter >= 'a' && letter <= 'z'; });
}

int mostEdits(std::string_view word) {
  if (!isPlainWord(word) || word.size() < kShortestForOneEdit) return 0;
  return word.size() < kShortestForTwoEdits ? 1 : 2;
}

std::vector<std::string> similarWords(std::string_view word, int edits, std::string_view words,
                                      std::size_t length, std::size_t limit) {
  std::vector<std::string> similar;
  const EditDistance distance(word);
  for (; words.size() >= length && similar.size() < limit; words.remove_prefix(length)) {
    const std::string_view other = words.substr(0, length);
    if (beginsOrEndsLike(word, other, edits) && isPlainWord(other) && distance.to(other) == edits) {
      similar.emplace_back(other);
    }
  }
  return similar;
}

}  // namespace wayloom
