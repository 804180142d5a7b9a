#pragma once

#include <vector>

#include "regions/CarProfile.h"
#include "regions/GroundGeometry.h"
#include "regions/RoadGraphFile.h"

namespace wayloom {

/// A way as it was surveyed: one line that may run through many junctions.
struct RoadWay {
  Line line;
  RoadUse use;
};

/// The network of these ways. They are joined where they share a position, and cut there; ways that
/// only cross each other are a bridge and its underpass.
RoadNetwork roadNetwork(const std::vector<RoadWay>& ways);

}  // namespace wayloom
