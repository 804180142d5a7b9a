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
  enum class Match {
    kWholeWords,
    kLastWordMayGoOn,
    kEveryWordMayGoOn,
    /// The last word may go on even when it is a fragment: somebody is typing.
    kStillTyping,
  };

  SearchText(std::string_view text, const NameFolder& folder);

  /// No words: nothing to look for.
  bool isEmpty() const { return mWords.empty(); }
  std::size_t size() const { return mWords.size(); }
  /// As it was typed, unless it was replaced.
  const std::string& word(std::size_t number) const { return mWords[number].front(); }
  bool hasWord(const std::string& word) const;
  /// Whether the first word, finished or not, begins this one.
  bool beginsWith(const std::string& word) const;
  /// The letters and digits of all words, in bytes.
  std::size_t length() const;

  /// The words in the order they were typed, as place_key holds names: one key, or several where
  /// words have several forms.
  std::vector<std::string> keys() const;

  /// The same with a word replaced by any of others, at least one.
  SearchText with(std::size_t number, std::vector<std::string> others) const;

  /// Whether there is more than fragments of one or two letters, short numbers, and words that only
  /// join others: "of the", "bei der".
  bool saysSomething() const;

  /// Without words that hold a digit (house numbers, postal codes), when others are left.
  std::optional<SearchText> withoutNumbers() const;

  /// An expression for places of which every word is found, at least one of them in the name.
  std::string expression(Match match) const;
  /// The same, limited to the grid cells around a position.
  std::string expressionNear(Match match, Coordinate position) const;

 private:
  /// The forms of a word, any of which may be found: the first is the one that was typed, others
  /// have ä, ö, ü, å and ø in two letters.
  using Word = std::vector<std::string>;

  explicit SearchText(const std::vector<Word>& words);
  static std::vector<std::string> terms(const std::vector<Word>& words, Match match);

  std::vector<Word> mWords;
  /// All of them in their order, the repeated ones too.
  std::vector<Word> mSequence;
};

}  // namespace wayloom
