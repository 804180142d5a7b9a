#pragma once

namespace wayloom {

/// A position in degrees; north and east are positive.
struct Coordinate {
  double latitude = 0;
  double longitude = 0;

  bool operator==(const Coordinate&) const = default;
};

}  // namespace wayloom
