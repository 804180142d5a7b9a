#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "geo/Coordinate.h"

namespace wayloom {

/// A populated place of the GeoNames list.
struct City {
  std::int64_t id = 0;
  std::string name;
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

/// Reads the protocol-buffer list: one message per place after its length, positions as differences
/// to the place before. Nothing when the bytes are damaged.
std::optional<std::vector<City>> readCityList(std::string_view bytes);

}  // namespace wayloom
