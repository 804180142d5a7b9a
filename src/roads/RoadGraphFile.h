#pragma once

#include <cstdint>
#include <vector>

#include "geo/Coordinate.h"
#include "regions/Database.h"
#include "roads/CarProfile.h"

namespace wayloom {

/// A position in units of 1e-7 degrees, in which region files keep roads.
struct RoadPoint {
  std::int32_t longitude = 0;
  std::int32_t latitude = 0;

  auto operator<=>(const RoadPoint&) const = default;
};

RoadPoint roadPoint(Coordinate coordinate);
Coordinate coordinateOf(RoadPoint point);

/// A stretch of road between two junctions or dead ends.
struct RoadEdge {
  /// Numbers of junctions.
  std::uint32_t from = 0;
  std::uint32_t to = 0;
  /// The number of the first bend; the last stands before the first of the next edge.
  std::uint32_t firstBend = 0;
  RoadUse use;

  bool operator==(const RoadEdge&) const = default;
};

/// A turn that must not be made: at a junction from the edge on which one comes to another.
struct ForbiddenTurn {
  std::uint32_t fromEdge = 0;
  std::uint32_t junction = 0;
  std::uint32_t toEdge = 0;

  auto operator<=>(const ForbiddenTurn&) const = default;
};

/// The roads of a region as its file keeps them.
struct RoadNetwork {
  std::vector<RoadPoint> junctions;
  std::vector<RoadEdge> edges;
  /// The bends of all edges, between their ends, edge after edge.
  std::vector<RoadPoint> bends;
  std::vector<ForbiddenTurn> turns;

  bool operator==(const RoadNetwork&) const = default;
};

/// Makes the tables of a road network and fills them.
Status writeRoads(Database& database, const RoadNetwork& network);

/// Reads the road network of a region; an empty one when the region has none. What comes back
/// without a failure is sound: every number leads to something, every position is on the globe.
Result<RoadNetwork> readRoads(Database& database);

}  // namespace wayloom
