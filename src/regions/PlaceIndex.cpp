#include "regions/PlaceIndex.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>

#include "regions/GroundGeometry.h"
#include "regions/SearchText.h"
#include "settings/TrimmedText.h"
#include "settings/Utf8.h"

namespace wayloom {

namespace {

// Enough that what the user means is among them, few enough to read in a millisecond or two.
constexpr int kMostCandidates = 200;
constexpr int kMostNamesakes = 400;

// Scores are on the scale of importance: one more is ten times the population.
constexpr double kExactNameBonus = 3.5;
constexpr double kFirstWordBonus = 0.5;
constexpr double kNearnessBonus = 2.5;
constexpr double kNearnessHalfMetres = 30000;
constexpr double kSamePlaceMetres = 5000;

constexpr double kHouseMetres = 40;
constexpr double kStreetMetres = 120;
constexpr double kAroundMetres = 15000;
constexpr double kFarMetres = 100000;

bool isPosition(Coordinate position) {
  return std::abs(position.latitude) <= 90 && std::isfinite(position.longitude);
}

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

// How far a position is outside a settlement, taking it for a disc that grows with its population
// (a million people: 6 km). Another country's settlements count as further than they are, because
// a wrong country is worse than a wrong village; but not on their own ground, because borders on
// the map are rough.
double metresOutside(const Place& settlement, Coordinate position,
                     const std::optional<Place>& country) {
  const double metres = distanceMetres(position, settlement.coordinate);
  const double people = static_cast<double>(std::max<std::int64_t>(settlement.population, 0));
  const double outside = metres - 6 * std::sqrt(people);
  const bool isForeign = country && settlement.country != country->name;
  return isForeign && outside > 0 ? outside + 2000 + metres : outside;
}

}  // namespace

struct PlaceIndex::Question {
  SearchText text;
  SearchText::Match match;
  std::optional<Coordinate> near;
};

Result<PlaceIndex> PlaceIndex::open(const RegionStore& store) {
  auto folder = NameFolder::create();
  if (!folder) return folder.failure();
  PlaceIndex index(std::move(*folder));
  for (const Region& region : store.regions()) {
    if (auto places = RegionPlaces::open(region.path)) index.mRegions.push_back(std::move(*places));
  }
  return index;
}

std::vector<Place> PlaceIndex::search(std::string_view text, std::optional<Coordinate> near,
                                      std::size_t limit) {
  if (near && !isPosition(*near)) near.reset();
  const SearchText typed(text, mFolder);
  if (typed.isEmpty()) return {};
  std::vector<Candidate> found;
  for (const auto match :
       {SearchText::Match::kLastWordMayGoOn, SearchText::Match::kEveryWordMayGoOn}) {
    if (found.empty()) found = candidates({typed, match, near});
  }
  if (found.empty() && typed.hasHouseNumber()) found = streets(typed, near);
  // Two letters are a name only if they are all of it, accents too: "a" is not Å, and nothing else.
  if (!typed.saysSomething()) {
    const std::string letters = trimmedText(text);
    std::erase_if(found, [&](const Candidate& candidate) {
      return letters.size() < 2 || !isSameText(candidate.place.name, letters);
    });
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const auto& a, const auto& b) { return a.score > b.score; });
  std::vector<Place> places;
  for (auto& candidate : found) {
    if (places.size() == limit) break;
    // Regions overlap, so one place may stand in several.
    const bool isKnown = std::any_of(places.begin(), places.end(), [&](const Place& place) {
      return place.kind == candidate.place.kind && place.name == candidate.place.name &&
             distanceMetres(place.coordinate, candidate.place.coordinate) < kSamePlaceMetres;
    });
    if (!isKnown) places.push_back(std::move(candidate.place));
  }
  return places;
}

std::vector<PlaceIndex::Candidate> PlaceIndex::streets(const SearchText& address,
                                                       std::optional<Coordinate> near) {
  const auto words = address.withoutNumbers();
  if (!words || !words->saysSomething()) return {};
  auto found = candidates({*words, SearchText::Match::kWholeWords, near});
  std::erase_if(
      found, [](const Candidate& candidate) { return candidate.place.kind != PlaceKind::kStreet; });
  return found;
}

std::optional<Place> PlaceIndex::withoutNumbers(std::string_view text,
                                                std::optional<Coordinate> near) {
  const auto typed = SearchText(text, mFolder).withoutNumbers();
  if (!typed || !typed->saysSomething()) return std::nullopt;
  auto found = candidates({*typed, SearchText::Match::kLastWordMayGoOn, near});
  const auto best = std::max_element(
      found.begin(), found.end(), [](const auto& a, const auto& b) { return a.score < b.score; });
  return best == found.end() ? std::nullopt : std::optional(std::move(best->place));
}

std::vector<PlaceIndex::Candidate> PlaceIndex::candidates(const Question& question) {
  std::vector<Candidate> found;
  for (RegionPlaces& region : mRegions) {
    std::unordered_map<std::int64_t, bool> seen;
    const auto take = [&](std::vector<PlaceRow> rows, bool isNamed) {
      for (auto& row : rows) {
        if (!seen.emplace(row.id, true).second) continue;
        const double rowScore = score(row, isNamed, question);
        found.push_back({std::move(row.place), rowScore});
      }
    };
    take(region.withKey(question.text.key(), kMostNamesakes), true);
    take(region.matching(question.text.expression(question.match), kMostCandidates), false);
    if (question.near) {
      take(region.matching(question.text.expressionNear(question.match, *question.near),
                           kMostCandidates),
           false);
    }
  }
  return found;
}

double PlaceIndex::score(const PlaceRow& row, bool isNamed, const Question& question) const {
  double score = row.importance;
  const auto words = mFolder.words(row.place.name);
  const auto isTyped = [&](const std::string& word) { return question.text.hasWord(word); };
  if (isNamed || std::all_of(words.begin(), words.end(), isTyped)) {
    score += kExactNameBonus;
  } else if (!words.empty() && words.front().starts_with(question.text.words().front())) {
    score += kFirstWordBonus;
  }
  if (question.near) {
    const double metres = distanceMetres(*question.near, row.place.coordinate);
    score += kNearnessBonus / (1 + metres / kNearnessHalfMetres);
  }
  return score;
}

std::optional<Place> PlaceIndex::placeAt(Coordinate position) {
  if (!isPosition(position)) return std::nullopt;
  if (auto street = streetAt(position)) return street;
  return areaAt(position);
}

std::optional<Place> PlaceIndex::areaAt(Coordinate position) {
  if (!isPosition(position)) return std::nullopt;
  auto country = countryAt(position);
  for (const double radius : {kAroundMetres, kFarMetres}) {
    if (auto settlement = settlementAt(position, radius, country)) return settlement;
  }
  return country;
}

std::optional<Place> PlaceIndex::streetAt(Coordinate position) {
  std::optional<Place> nearest;
  double nearestMetres = std::numeric_limits<double>::infinity();
  for (RegionPlaces& region : mRegions) {
    for (const NearbyLine& line : region.linesAround(position, kStreetMetres)) {
      if (line.spot.metres >= nearestMetres + kHouseMetres) continue;
      auto row = region.withId(line.place);
      if (!row) continue;
      // A house says more than the street it stands at, unless it is some way off.
      const bool isHouse = row->place.kind == PlaceKind::kAddress;
      const double metres = line.spot.metres - (isHouse ? kHouseMetres : 0);
      if (metres >= nearestMetres) continue;
      nearestMetres = metres;
      nearest = std::move(row->place);
      nearest->coordinate = line.spot.coordinate;
    }
  }
  return nearest;
}

std::optional<Place> PlaceIndex::settlementAt(Coordinate position, double radiusMetres,
                                              const std::optional<Place>& country) {
  std::optional<Place> best;
  double bestMetres = std::numeric_limits<double>::infinity();
  for (RegionPlaces& region : mRegions) {
    for (auto& row : region.settlementsAround(position, radiusMetres)) {
      if (distanceMetres(position, row.place.coordinate) > radiusMetres) continue;
      const double metres = metresOutside(row.place, position, country);
      if (metres >= bestMetres) continue;
      bestMetres = metres;
      best = std::move(row.place);
    }
  }
  return best;
}

std::optional<Place> PlaceIndex::countryAt(Coordinate position) {
  for (RegionPlaces& region : mRegions) {
    for (auto& row : region.areasAt(position)) {
      if (row.place.kind == PlaceKind::kCountry) return std::move(row.place);
    }
  }
  return std::nullopt;
}

}  // namespace wayloom
