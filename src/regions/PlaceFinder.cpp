#include "regions/PlaceFinder.h"

#include <algorithm>
#include <string>
#include <unordered_set>

#include "regions/GroundGeometry.h"
#include "regions/SimilarWords.h"
#include "settings/TrimmedText.h"
#include "settings/Utf8.h"

namespace wayloom {

namespace {

// Enough that what the user means is among them, few enough to read in a millisecond or two.
constexpr int kMostCandidates = 200;
constexpr int kMostNamesakes = 400;

// Scores are on the scale of importance: one more is ten times the population.
constexpr double kExactNameBonus = 3.5;
constexpr double kOtherNameBonus = 2.75;
// What is well known by a name is meant by it, even where something larger has it besides its own.
constexpr double kWellKnown = 4.5;
constexpr double kFirstWordBonus = 0.5;
constexpr double kNearnessBonus = 2.5;
constexpr double kNearnessHalfMetres = 30000;
constexpr double kSamePlaceMetres = 5000;
// Large cities have hundreds of names, and so something that is similar to any text.
constexpr double kDoubtOfOtherNames = 1;
constexpr double kDoubtOfTheirParts = 2.2;

// What may hardly be meant comes behind all else.
constexpr double kUnlikely = 20;

// How many words are tried for one that is misspelt, those of important places first.
constexpr std::size_t kMostCorrections = 24;
constexpr std::size_t kMostUnknownWords = 2;

// Whether two texts have the same letters, small or capital.
bool isSameText(std::string_view one, std::string_view other) {
  const auto isCapital = [](char32_t letter) {
    return (letter >= U'A' && letter <= U'Z') || (letter >= U'À' && letter <= U'Þ');
  };
  for (std::size_t at = 0; at < one.size() && at < other.size();) {
    const Utf8Step first = utf8Step(one, at);
    const Utf8Step second = utf8Step(other, at);
    const auto small = [&](char32_t letter) { return isCapital(letter) ? letter + 0x20 : letter; };
    if (small(first.character) != small(second.character)) return false;
    at += first.length;
  }
  return one.size() == other.size();
}

// Whether a place may be meant that was not typed in full or as it is written. The fewer letters
// there are, the more places they may be, and the better known (on the scale of importance) or the
// nearer the one must be: for five unfinished letters thirty thousand people, for six with an edit
// sixty thousand. Of many letters any place may be meant.
bool isRenownedEnough(double renown, std::size_t letters, int edits) {
  constexpr double kLeastRenown = 3;
  const auto count = static_cast<double>(letters);
  const double needed = edits == 0 ? 7 - 0.5 * count : 7 + 2 * edits - 0.7 * count;
  return std::max(renown, kLeastRenown) >= needed;
}

// The best first, each place once: regions overlap.
template <typename Candidates>
std::vector<Place> best(Candidates found, std::size_t limit) {
  std::stable_sort(found.begin(), found.end(),
                   [](const auto& a, const auto& b) { return a.score > b.score; });
  std::vector<Place> places;
  for (auto& candidate : found) {
    if (places.size() == limit) break;
    const bool isKnown = std::any_of(places.begin(), places.end(), [&](const Place& place) {
      return place.kind == candidate.place.kind && place.name == candidate.place.name &&
             distanceMetres(place.coordinate, candidate.place.coordinate) < kSamePlaceMetres;
    });
    if (!isKnown) places.push_back(std::move(candidate.place));
  }
  return places;
}

}  // namespace

std::vector<Place> PlaceFinder::search(std::string_view text, std::size_t limit) {
  const SearchText typed(text, mFolder);
  if (typed.isEmpty()) return {};
  Candidates found = asTyped(typed);
  if (isWeak(found)) append(found, misspelt(typed));
  // Two letters are a name only if they are all of it, accents too: "a" is not Å, and nothing else.
  if (!typed.saysSomething()) {
    const std::string letters = trimmedText(text);
    std::erase_if(found, [&](const Candidate& candidate) {
      return letters.size() < 2 || !isSameText(candidate.place.name, letters);
    });
  }
  return best(std::move(found), limit);
}

std::vector<Place> PlaceFinder::suggest(std::string_view text, std::size_t limit) {
  const SearchText typed(text, mFolder);
  if (typed.isEmpty()) return {};
  Candidates found = matching(typed, SearchText::Match::kStillTyping);
  const SearchText words = typed.withoutNumbers().value_or(typed);
  if (found.empty()) found = matching(words, SearchText::Match::kStillTyping);
  if (found.empty()) found = matching(words, SearchText::Match::kEveryWordMayGoOn);
  for (int edits = 1; edits <= 2 && isWeak(found); ++edits) {
    const auto correction = corrected(words, edits);
    if (!correction) continue;
    Candidates more = matching(*correction, SearchText::Match::kWholeWords);
    for (Candidate& each : more) each.renown -= edits;
    append(found, std::move(more));
  }
  for (Candidate& each : found) each.score = each.renown + suggestionBonus(each.by);
  return best(std::move(found), limit);
}

double PlaceFinder::suggestionBonus(By by) {
  switch (by) {
    case By::kOwnName:
      return 1.5;
    case By::kWordOfName:
      return 1;
    case By::kPartOfName:
      return 0.5;
    case By::kOtherName:
      return 0;
    case By::kPartOfOtherName:
      return -1;
  }
  return 0;
}

std::optional<Place> PlaceFinder::withoutNumbers(std::string_view text) {
  const auto typed = SearchText(text, mFolder).withoutNumbers();
  if (!typed || !typed->saysSomething()) return std::nullopt;
  auto found = best(matching(*typed, SearchText::Match::kLastWordMayGoOn), 1);
  return found.empty() ? std::nullopt : std::optional(std::move(found.front()));
}

PlaceFinder::Candidates PlaceFinder::asTyped(const SearchText& text) {
  Candidates found;
  for (const auto match :
       {SearchText::Match::kLastWordMayGoOn, SearchText::Match::kEveryWordMayGoOn}) {
    if (found.empty()) found = matching(text, match);
  }
  const auto isUnlikely = [&](const Candidate& each) { return !isMeant(each, text.length(), 0); };
  if (std::all_of(found.begin(), found.end(), isUnlikely)) found.clear();
  for (Candidate& each : found) each.score -= isUnlikely(each) ? kUnlikely : 0;
  return found;
}

PlaceFinder::Candidates PlaceFinder::misspelt(const SearchText& text) {
  for (int edits = 1; edits <= 2; ++edits) {
    const auto correction = corrected(text, edits);
    if (!correction) continue;
    Candidates found = matching(*correction, SearchText::Match::kWholeWords);
    std::erase_if(found,
                  [&](const Candidate& each) { return !isMeant(each, text.length(), edits); });
    if (!found.empty()) return found;
  }
  return {};
}

bool PlaceFinder::isWeak(const Candidates& found) {
  return std::all_of(found.begin(), found.end(),
                     [](const Candidate& each) { return each.by == By::kPartOfOtherName; });
}

void PlaceFinder::append(Candidates& found, Candidates more) {
  std::move(more.begin(), more.end(), std::back_inserter(found));
}

bool PlaceFinder::isMeant(const Candidate& candidate, std::size_t letters, int edits) {
  const bool isPart = candidate.by == By::kPartOfName || candidate.by == By::kPartOfOtherName;
  if (!isPart && edits == 0) return true;
  double renown = candidate.renown;
  if (candidate.by == By::kOtherName) renown -= kDoubtOfOtherNames;
  if (candidate.by == By::kPartOfOtherName) renown -= kDoubtOfTheirParts;
  return isRenownedEnough(renown, letters, edits);
}

std::optional<SearchText> PlaceFinder::corrected(const SearchText& text, int edits) {
  SearchText correction = text;
  std::size_t unknown = 0;
  bool isTooShort = true;
  for (std::size_t number = 0; number < text.size(); ++number) {
    const std::string& word = text.word(number);
    if (mostEdits(word) == 0) continue;
    isTooShort = isTooShort && mostEdits(word) < edits;
    auto others = similar(word, std::min(edits, mostEdits(word)));
    if (isKnown(word)) {
      others.insert(others.begin(), word);
    } else if (others.empty() || ++unknown > kMostUnknownWords) {
      return std::nullopt;
    }
    correction = correction.with(number, std::move(others));
  }
  return isTooShort ? std::nullopt : std::optional(std::move(correction));
}

bool PlaceFinder::isKnown(const std::string& word) {
  return std::any_of(mRegions.begin(), mRegions.end(), [&](RegionPlaces& region) {
    const std::string words = region.wordsOfLength(word.size());
    for (std::size_t at = 0; at < words.size(); at += word.size()) {
      if (words.compare(at, word.size(), word) == 0) return true;
    }
    return false;
  });
}

std::vector<std::string> PlaceFinder::similar(const std::string& word, int edits) {
  std::vector<std::string> words;
  for (RegionPlaces& region : mRegions) {
    const auto most = static_cast<std::size_t>(edits);
    for (std::size_t length = word.size() - most; length <= word.size() + most; ++length) {
      for (auto& other :
           similarWords(word, edits, region.wordsOfLength(length), length, kMostCorrections)) {
        if (std::find(words.begin(), words.end(), other) == words.end()) {
          words.push_back(std::move(other));
        }
      }
    }
  }
  return words;
}

PlaceFinder::Candidates PlaceFinder::matching(const SearchText& text, SearchText::Match match) {
  Candidates found;
  for (RegionPlaces& region : mRegions) {
    std::unordered_set<std::int64_t> seen;
    const auto take = [&](std::vector<PlaceRow> rows, bool isNamed) {
      for (auto& row : rows) {
        if (!seen.insert(row.id).second) continue;
        found.push_back(candidate(std::move(row), isNamed, text));
      }
    };
    for (const auto& key : text.keys()) take(region.withKey(key, kMostNamesakes), true);
    take(region.matching(text.expression(match), kMostCandidates), false);
    if (mNear) take(region.matching(text.expressionNear(match, *mNear), kMostCandidates), false);
  }
  return found;
}

PlaceFinder::Candidate PlaceFinder::candidate(PlaceRow row, bool isNamed,
                                              const SearchText& text) const {
  const auto words = mFolder.words(row.place.name);
  const auto isTyped = [&](const std::string& word) { return text.hasWord(word); };
  double bonus = 0;
  By by = By::kPartOfOtherName;
  // "New York" is the city's own name, of which the rest was left out.
  const bool isFirstTyped = !words.empty() && isTyped(words.front());
  if (std::all_of(words.begin(), words.end(), isTyped) || (isNamed && isFirstTyped)) {
    bonus = kExactNameBonus + std::clamp(row.importance - kWellKnown, 0.0, 1.0);
    by = By::kOwnName;
  } else if (isNamed) {
    bonus = kOtherNameBonus;
    by = By::kOtherName;
  } else {
    if (!words.empty() && text.beginsWith(words.front())) {
      bonus = kFirstWordBonus;
      by = By::kPartOfName;
    }
    if (std::any_of(words.begin(), words.end(), isTyped)) by = By::kWordOfName;
  }
  double renown = row.importance;
  if (mNear) {
    const double metres = distanceMetres(*mNear, row.place.coordinate);
    renown += kNearnessBonus / (1 + metres / kNearnessHalfMetres);
  }
  return {std::move(row.place), by, renown, renown + bonus};
}

}  // namespace wayloom
