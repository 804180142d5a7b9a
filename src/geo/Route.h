#pragma once

#include "regions/GroundGeometry.h"

namespace wayloom {

/// A drive on roads.
struct Route {
  /// Every bend of every road driven, from the spot on a road nearest to the start to the one
  /// nearest to the end; at least two positions.
  Line line;
  double metres = 0;
  double seconds = 0;
};

}  // namespace wayloom
