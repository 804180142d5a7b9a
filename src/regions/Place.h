#pragma once

#include <cstdint>
#include <string>
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
  /// A house with its number, or another spot with an address or name of its own.
  kAddress = 5,
};

/// One place of the index. Texts that do not apply are empty.
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
