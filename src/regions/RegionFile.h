#pragma once

#include <cstdint>
#include <string>

namespace wayloom {

/// The numbers that mark an SQLite file as a region file of the version this program reads.
inline constexpr std::int32_t kRegionApplicationId = 0x574C5247;
inline constexpr std::int32_t kRegionVersion = 4;
inline constexpr char kRegionExtension[] = ".region";

/// The part of the world a region covers, in degrees; west is never east of east.
struct RegionBounds {
  double west = -180;
  double south = -90;
  double east = 180;
  double north = 90;

  bool operator==(const RegionBounds&) const = default;
};

/// Whether the bounds lie on the globe and the right way round.
inline bool isValid(const RegionBounds& bounds) {
  return bounds.west >= -180 && bounds.west <= bounds.east && bounds.east <= 180 &&
         bounds.south >= -90 && bounds.south <= bounds.north && bounds.north <= 90;
}

/// What a region file says about itself.
struct RegionInfo {
  /// What users call the region; not empty.
  std::string name;
  /// Who the data is owed to, to be shown with the map; may be empty.
  std::string attribution;
  RegionBounds bounds;

  bool operator==(const RegionInfo&) const = default;
};

}  // namespace wayloom
