#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "geo/Coordinate.h"
#include "platform/Place.h"
#include "regions/NameFolder.h"
#include "regions/RegionPlaces.h"
#include "regions/SearchText.h"

namespace wayloom {

/// One search through the places of all regions; PlaceIndex says what its answers are. Made for a
/// question, and lives no longer than what it was made from.
class PlaceFinder {
 public:
  PlaceFinder(std::vector<RegionPlaces>& regions, const NameFolder& folder,
              std::optional<Coordinate> near)
      : mRegions(regions), mFolder(folder), mNear(near) {}

  std::vector<Place> search(std::string_view text, std::size_t limit);
  std::vector<Place> suggest(std::string_view text, std::size_t limit);
  std::optional<Place> withoutNumbers(std::string_view text);

 private:
  /// How a place came to be found.
  enum class By { kOwnName, kWordOfName, kOtherName, kPartOfName, kPartOfOtherName };
  struct Candidate {
    Place place;
    By by = By::kOwnName;
    /// Its importance, and more when it is near.
    double renown = 0;
    double score = 0;
  };
  using Candidates = std::vector<Candidate>;

  /// The places that hold every word, whole or as far as `match` says.
  Candidates matching(const SearchText& text, SearchText::Match match);
  /// As it was typed, or with unfinished words.
  Candidates asTyped(const SearchText& text);
  /// With words that no place has taken for ones that are similar.
  Candidates misspelt(const SearchText& text);
  /// How much less what is typed in full stands out while somebody goes on typing.
  static double suggestionBonus(By by);
  /// Nothing, or only what has the words in a name that it is hardly known by.
  static bool isWeak(const Candidates& found);
  static void append(Candidates& found, Candidates more);
  static bool isMeant(const Candidate& candidate, std::size_t letters, int edits);
  /// The text with the words that no place has replaced by similar ones; nothing if it has none, or
  /// so many that it is no misspelling.
  std::optional<SearchText> corrected(const SearchText& text, int edits);
  bool isKnown(const std::string& word);
  std::vector<std::string> similar(const std::string& word, int edits);
  Candidate candidate(PlaceRow row, bool isNamed, const SearchText& text) const;

  std::vector<RegionPlaces>& mRegions;
  const NameFolder& mFolder;
  std::optional<Coordinate> mNear;
};

}  // namespace wayloom
