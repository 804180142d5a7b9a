#pragma once

#include <cstddef>
#include <vector>

#include "regions/GroundGeometry.h"
#include "roads/CarProfile.h"
#include "roads/RoadGraphFile.h"

namespace wayloom {

/// A way as it was surveyed: one line that may run through many junctions.
struct RoadWay {
  Line line;
  RoadUse use;
};

/// What must not be done where ways meet.
struct RoadRules {
  /// A turn between two ways, which are given by number.
  struct Turn {
    std::size_t fromWay = 0;
    std::size_t toWay = 0;
    Coordinate via;
    /// Whether every other turn is forbidden rather than this one.
    bool isOnly = false;
  };

  std::vector<Turn> turns;
  /// Positions that no car passes.
  std::vector<Coordinate> barriers;
};

/// The network of these ways. They are joined where they share a position, and cut there; ways that
/// only cross each other are a bridge and its underpass. A rule for a turn counts where both ways
/// end at its position.
RoadNetwork roadNetwork(const std::vector<RoadWay>& ways, const RoadRules& rules = {});

}  // namespace wayloom
