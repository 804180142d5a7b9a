#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <vector>

#include "regions/GroundGeometry.h"
#include "roads/RoadNetwork.h"
#include "roads/RoadRestriction.h"

namespace wayloom {

/// A way as it was surveyed: one line that may run through many junctions.
struct RoadWay {
  Line line;
  RoadUse use;
  /// By which restrictions name it; parts of one way share it.
  std::int64_t number = 0;
  /// The node of each position. Without nodes, ways are joined where they share a position.
  std::vector<std::int64_t> nodes = {};
};

/// The number that stands for the node at a position in ways without nodes.
std::int64_t roadNodeAt(Coordinate position);

/// Which way the signals at a node look; both unless the survey says otherwise.
struct RoadSignal {
  bool forward = true;
  bool backward = true;
};

/// What stands on ways, and what must not be done where they meet.
struct RoadRules {
  std::vector<RoadRestriction> restrictions;
  /// Nodes that no car passes.
  std::set<std::int64_t> barriers;
  /// By node. Forward is the direction of the way on which they stand.
  std::map<std::int64_t, RoadSignal> signals;
};

/// What could not be taken as it was surveyed.
struct RoadFaults {
  /// Restrictions whose ways do not meet as they say, or that leave open which turn is meant.
  std::size_t unfitRestrictions = 0;
  /// Ends of roads that were not joined since more met there than meet anywhere.
  std::size_t unjoinedRoads = 0;
};

/// The network of these ways. They are joined where they share a node, and cut there; ways that
/// only cross each other are a bridge and its underpass.
RoadNetwork roadNetwork(const std::vector<RoadWay>& ways, const RoadRules& rules = {},
                        RoadFaults* faults = nullptr);

}  // namespace wayloom
