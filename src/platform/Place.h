#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "geo/Coordinate.h"

namespace wayloom {

/// What sort of place a row of the place index is; the numbers stand in region files.
enum class PlaceKind {
  kCountry = 1,
  /// A first-level division of a country: a state, a province, a county.
  kDivision = 2,
  /// A city, town, village or part of one.
  kSettlement = 3,
  kStreet = 4,
  /// A house with its number.
  kAddress = 5,
  /// What has a name of its own: a castle, a station, a shop, a school.
  kPointOfInterest = 6,
  /// The houses of one postcode.
  kPostcode = 7,
};

/// Numbers in files that stand for no kind give nothing.
std::optional<PlaceKind> placeKind(std::int64_t number);

/// In English, in the singular: "point of interest".
std::string_view kindName(PlaceKind kind);

/// One place that can be searched for. Texts that do not apply are empty.
struct Place {
  PlaceKind kind = PlaceKind::kSettlement;
  std::string name;
  /// The settlement, division and country that the place lies in; never the place itself.
  std::string locality;
  std::string division;
  std::string country;
  Coordinate coordinate;
  std::int64_t population = 0;
};

/// The address of a place as a person would write it, most precise line first; never empty lines.
/// A name that says the same as the one before it is left out ("Luxembourg, Luxembourg").
std::vector<std::string> addressLines(const Place& place);

}  // namespace wayloom
