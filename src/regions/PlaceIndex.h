#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "geo/Coordinate.h"
#include "platform/Place.h"
#include "regions/NameFolder.h"
#include "regions/PlaceFinder.h"
#include "regions/RegionPlaces.h"
#include "regions/RegionStore.h"

namespace wayloom {

/// Finds places by name and says what is at a position, over all regions of a store. Region files
/// without a place index are passed over. Owned by whoever asks; one thread at a time.
class PlaceIndex {
 public:
  static Result<PlaceIndex> open(const RegionStore& store);

  /// The places that a text names, best first: those of exactly this name, the important ones, and
  /// those close to `near`. Case, accents, alphabet and the order of words do not matter, and words
  /// of three letters and more may be unfinished; but each word must be found, numbers as they are.
  /// When nothing is, words may be misspelt, as far as what they come near to is well enough known
  /// to be meant. Any text is allowed.
  std::vector<Place> search(std::string_view text, std::optional<Coordinate> near,
                            std::size_t limit = 20);

  /// What somebody who is typing may come to mean, likeliest first: the last word goes on however
  /// short it is, numbers and slips of the finger do not count.
  std::vector<Place> suggest(std::string_view text, std::optional<Coordinate> near,
                             std::size_t limit);

  /// The best place for a text with numbers that no place has, taken without them. For telling what
  /// there is instead: that it was meant is a guess.
  std::optional<Place> withoutNumbers(std::string_view text, std::optional<Coordinate> near);

  /// The address of a position: the house or street there, else the settlement that the position
  /// belongs to or is nearest to, else the country. Nothing far out at sea. The coordinate of the
  /// answer is that of what was found.
  std::optional<Place> placeAt(Coordinate position);
  /// The same without houses and streets.
  std::optional<Place> areaAt(Coordinate position);

 private:
  explicit PlaceIndex(NameFolder folder) : mFolder(std::move(folder)) {}
  PlaceFinder finder(std::optional<Coordinate> near);
  std::optional<Place> streetAt(Coordinate position);
  std::optional<Place> settlementAt(Coordinate position, double radiusMetres,
                                    const std::optional<Place>& country);
  std::optional<Place> countryAt(Coordinate position);

  NameFolder mFolder;
  std::vector<RegionPlaces> mRegions;
};

}  // namespace wayloom
