#include "regions/SearchText.h"

#include <algorithm>

#include "regions/PlaceGrid.h"

namespace wayloom {

namespace {

constexpr std::size_t kMostBytes = 400;
constexpr std::size_t kMostWords = 12;
// Shorter ones name houses, roads and floors, but no place by themselves.
constexpr std::size_t kShortestNumber = 4;

bool hasDigit(const std::string& word) {
  return word.find_first_of("0123456789") != std::string::npos;
}

// The beginning of a text, never ending inside a character.
std::string_view beginning(std::string_view text) {
  if (text.size() <= kMostBytes) return text;
  std::size_t size = kMostBytes;
  while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80) --size;
  return text.substr(0, size);
}

std::vector<std::string> distinctWords(std::vector<std::string> words) {
  std::vector<std::string> distinct;
  for (auto& word : words) {
    if (distinct.size() == kMostWords) break;
    if (std::find(distinct.begin(), distinct.end(), word) == distinct.end()) {
      distinct.push_back(std::move(word));
    }
  }
  return distinct;
}

std::string join(const std::vector<std::string>& parts, std::string_view separator) {
  std::string joined;
  for (const auto& part : parts) {
    if (!joined.empty()) joined += separator;
    joined += part;
  }
  return joined;
}

// Too little to guess the rest from, except in scripts whose characters are whole words or
// syllables (three bytes each). Numbers do not go on at all: 1 is not the beginning of 15.
bool isFragment(const std::string& word) {
  constexpr std::size_t kShortestBeginning = 3;
  return word.size() < kShortestBeginning || hasDigit(word);
}

// Folded words hold no quotes, so quoting them makes them text whatever they look like.
std::string quoted(const std::string& word) {
  return std::string("\"").append(word).append("\"");
}

std::vector<std::string> terms(const std::vector<std::string>& words, SearchText::Match match) {
  std::vector<std::string> terms;
  for (const auto& word : words) {
    const bool mayGoOn = match == SearchText::Match::kEveryWordMayGoOn ||
                         (match == SearchText::Match::kLastWordMayGoOn && &word == &words.back());
    terms.push_back(quoted(word) + (mayGoOn && !isFragment(word) ? "*" : ""));
  }
  return terms;
}

}  // namespace

SearchText::SearchText(std::vector<std::string> words)
    : mWords(distinctWords(std::move(words))), mKey(join(mWords, " ")) {}

SearchText::SearchText(std::string_view text, const NameFolder& folder) {
  const auto words = folder.words(beginning(text));
  mWords = distinctWords(words);
  mKey = join(words, " ");
}

bool SearchText::hasWord(const std::string& word) const {
  return std::find(mWords.begin(), mWords.end(), word) != mWords.end();
}

bool SearchText::saysSomething() const {
  return std::any_of(mWords.begin(), mWords.end(), [](const auto& word) {
    return !isFragment(word) || (hasDigit(word) && word.size() >= kShortestNumber);
  });
}

bool SearchText::hasHouseNumber() const {
  return std::any_of(mWords.begin(), mWords.end(), [](const std::string& word) {
    const std::size_t digits = std::min(word.find_first_not_of("0123456789"), word.size());
    return digits >= 1 && digits <= 4 && word[0] != '0' && word.size() <= digits + 1;
  });
}

std::optional<SearchText> SearchText::withoutNumbers() const {
  std::vector<std::string> kept;
  for (const auto& word : mWords) {
    if (!hasDigit(word)) kept.push_back(word);
  }
  if (kept.empty() || kept.size() == mWords.size()) return std::nullopt;
  return SearchText(std::move(kept));
}

std::string SearchText::expression(Match match) const {
  const auto parts = terms(mWords, match);
  if (parts.size() == 1) return std::string("name : ").append(parts.front());
  return std::string("{name context} : (")
      .append(join(parts, " AND "))
      .append(") AND name : (")
      .append(join(parts, " OR "))
      .append(")");
}

std::string SearchText::expressionNear(Match match, Coordinate position) const {
  std::vector<std::string> cells;
  for (int north = -1; north <= 1; ++north) {
    for (int east = -1; east <= 1; ++east) {
      cells.push_back(quoted(gridWord(position, east, north)));
    }
  }
  return std::string("(")
      .append(expression(match))
      .append(") AND cell : (")
      .append(join(cells, " OR "))
      .append(")");
}

}  // namespace wayloom
