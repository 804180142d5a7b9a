#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "geo/Coordinate.h"

namespace wayloom {

/// A wait on the way, as at signals.
struct RouteStop {
  /// The number of the geometry's position.
  std::size_t position = 0;
  double seconds = 0;
};

/// When and how fast a position of a route's geometry is passed.
struct RoutePassage {
  /// From the start of the drive until the position is reached.
  double seconds = 0;
  double metres = 0;
  double metresPerSecond = 0;
  /// How long one stands there.
  double waitSeconds = 0;
};

/// One way to drive.
struct Route {
  /// Where one is at the beginning, at equal steps of time after it, and at the end; from services
  /// that know no pace, every bend. At least two positions.
  std::vector<Coordinate> polyline = {};
  double distanceMetres = 0;
  double expectedSeconds = 0;
  /// The names of the regions whose roads are driven, where regions were asked.
  std::vector<std::string> regions = {};

  /// Every bend of every road driven, from the spot on a road nearest to the start to the one
  /// nearest to the end; at least two positions.
  std::vector<Coordinate> geometry = {};
  /// How fast one may drive on each stretch between two positions of the geometry, in m/s.
  std::vector<float> limits = {};
  /// In the order of the drive.
  std::vector<RouteStop> stops = {};
  /// One for each position of the geometry.
  std::vector<RoutePassage> passages = {};
};

}  // namespace wayloom
