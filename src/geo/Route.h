#pragma once

#include <string>
#include <vector>

#include "geo/Coordinate.h"

namespace wayloom {

/// One way to drive.
struct Route {
  /// Every bend of every road driven, from the spot on a road nearest to the start to the one
  /// nearest to the end; at least two positions.
  std::vector<Coordinate> polyline;
  double distanceMetres = 0;
  double expectedSeconds = 0;
  /// The names of the regions whose roads are driven, where regions were asked.
  std::vector<std::string> regions = {};
};

}  // namespace wayloom
