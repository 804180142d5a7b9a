#include "regions/SearchText.h"

#include <algorithm>

#include "regions/PlaceGrid.h"

namespace wayloom {

namespace {

constexpr std::size_t kMostBytes = 400;
constexpr std::size_t kMostWords = 12;
constexpr std::size_t kMostKeys = 48;
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

// Words of three letters and more that carry no meaning by themselves in the program's languages.
bool isJoiningWord(std::string_view word) {
  static constexpr std::string_view kWords[] = {
      "and",  "are",  "but", "for",  "from", "into", "near", "nor", "not",  "off",  "out",
      "than", "that", "the", "this", "was",  "with", "aus",  "bei", "das",  "dem",  "den",
      "der",  "des",  "die", "ein",  "eine", "fur",  "fuer", "ist", "mit",  "nach", "nicht",
      "oder", "und",  "vom", "von",  "vor",  "zum",  "zur",  "aux", "avec", "chez", "dans",
      "est",  "les",  "par", "pas",  "pour", "sur",  "une",  "con", "del",  "las",  "los",
      "para", "por",  "que", "sin",  "una",  "unos"};
  return std::find(std::begin(kWords), std::end(kWords), word) != std::end(kWords);
}

// Folded words hold no quotes, so quoting them makes them text whatever they look like.
std::string quoted(const std::string& word) {
  return std::string("\"").append(word).append("\"");
}

}  // namespace

SearchText::SearchText(const std::vector<Word>& words) : mSequence(words) {
  for (const Word& word : words) {
    if (mWords.size() < kMostWords && !hasWord(word.front())) mWords.push_back(word);
  }
}

SearchText::SearchText(std::string_view text, const NameFolder& folder)
    : SearchText([&] {
        const auto typed = folder.words(beginning(text));
        const auto spelledOut = folder.spelledOutWords(beginning(text));
        std::vector<Word> words;
        for (std::size_t number = 0; number < typed.size(); ++number) {
          words.push_back({typed[number]});
          if (spelledOut.size() == typed.size() && spelledOut[number] != typed[number]) {
            words.back().push_back(spelledOut[number]);
          }
        }
        return words;
      }()) {}

SearchText SearchText::with(std::size_t number, std::vector<std::string> others) const {
  auto words = mSequence;
  for (Word& word : words) {
    if (word == mWords[number]) word = others;
  }
  return SearchText(words);
}

std::vector<std::string> SearchText::keys() const {
  std::vector<std::string> keys = {""};
  for (const Word& word : mSequence) {
    std::vector<std::string> longer;
    for (const std::string& key : keys) {
      for (const std::string& form : word) {
        if (longer.size() == kMostKeys) break;
        longer.push_back(key.empty() ? form : key + ' ' + form);
      }
    }
    keys = std::move(longer);
  }
  return keys;
}

std::vector<std::string> SearchText::terms(const std::vector<Word>& words, Match match) {
  const auto mayGoOn = [&](const Word& word) {
    const bool isLast = &word == &words.back();
    if (match == Match::kStillTyping) return isLast;
    return (match == Match::kEveryWordMayGoOn || (match == Match::kLastWordMayGoOn && isLast)) &&
           !isFragment(word.front());
  };
  std::vector<std::string> terms;
  for (const Word& word : words) {
    std::vector<std::string> forms;
    for (const std::string& form : word) forms.push_back(quoted(form) + (mayGoOn(word) ? "*" : ""));
    terms.push_back(forms.size() == 1 ? forms.front() : "(" + join(forms, " OR ") + ")");
  }
  return terms;
}

bool SearchText::hasWord(const std::string& word) const {
  return std::any_of(mWords.begin(), mWords.end(), [&](const Word& forms) {
    return std::find(forms.begin(), forms.end(), word) != forms.end();
  });
}

bool SearchText::beginsWith(const std::string& word) const {
  return std::any_of(mWords.front().begin(), mWords.front().end(),
                     [&](const std::string& form) { return word.starts_with(form); });
}

std::size_t SearchText::length() const {
  std::size_t length = 0;
  for (const Word& word : mWords) length += word.front().size();
  return length;
}

bool SearchText::saysSomething() const {
  return std::any_of(mWords.begin(), mWords.end(), [](const Word& forms) {
    const std::string& word = forms.front();
    if (hasDigit(word)) return word.size() >= kShortestNumber;
    return !isFragment(word) && !isJoiningWord(word);
  });
}

std::optional<SearchText> SearchText::withoutNumbers() const {
  std::vector<Word> kept;
  for (const Word& word : mWords) {
    if (!hasDigit(word.front())) kept.push_back(word);
  }
  if (kept.empty() || kept.size() == mWords.size()) return std::nullopt;
  return SearchText(kept);
}

std::string SearchText::expression(Match match) const {
  const auto parts = terms(mWords, match);
  if (parts.size() == 1) return std::string("name : ").append(parts.front());
  return std::string("{name more context} : (")
      .append(join(parts, " AND "))
      .append(") AND {name more} : (")
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
