#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "geo/Coordinate.h"
#include "regions/NameFolder.h"

namespace wayloom {

/// What a user typed, reduced to folded words, and the full-text expressions that look for them.
/// Words count in any order and each once; the number of words is limited.
class SearchText {
 public:
  /// How much of a word must stand in the index.
  enum class Match { kWholeWords, kLastWordMayGoOn, kEveryWordMayGoOn };

  SearchText(std::string_view text, const NameFolder& folder);

  /// No words: nothing to look for.
  bool isEmpty() const { return mWords.empty(); }
  const std::vector<std::string>& words() const { return mWords; }
  bool hasWord(const std::string& word) const;

  /// The words in the order they were typed, as place_key holds names.
  const std::string& key() const { return mKey; }

  /// Whether there is more than fragments of one or two letters and short numbers.
  bool saysSomething() const;

  /// Whether a word looks like the number of a house: 7, 12b, 1024.
  bool hasHouseNumber() const;

  /// Without words that hold a digit (house numbers, postal codes), when others are left.
  std::optional<SearchText> withoutNumbers() const;

  /// An expression for places of which every word is found, at least one of them in the name.
  std::string expression(Match match) const;
  /// The same, limited to the grid cells around a position.
  std::string expressionNear(Match match, Coordinate position) const;

 private:
  explicit SearchText(std::vector<std::string> words);

  std::vector<std::string> mWords;
  std::string mKey;
};

}  // namespace wayloom
