#pragma once

#include <cmath>

namespace wayloom {

/// A position in degrees; north and east are positive.
struct Coordinate {
  double latitude = 0;
  double longitude = 0;

  bool operator==(const Coordinate&) const = default;
};

/// Whether both are numbers, latitude within 90 degrees and longitude within 180.
inline bool isOnGlobe(Coordinate coordinate) {
  return std::abs(coordinate.latitude) <= 90 && std::abs(coordinate.longitude) <= 180;
}

}  // namespace wayloom
