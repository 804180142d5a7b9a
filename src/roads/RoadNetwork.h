#pragma once

#include <cstdint>
#include <vector>

#include "geo/Coordinate.h"
#include "roads/CarProfile.h"
#include "roads/RoadHours.h"

namespace wayloom {

/// A position in units of 1e-7 degrees, in which region files keep roads.
struct RoadPoint {
  std::int32_t longitude = 0;
  std::int32_t latitude = 0;

  auto operator<=>(const RoadPoint&) const = default;  // NOLINT(modernize-use-nullptr)
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
  /// Whether signals stop who drives it forward, at its end, and who drives it backward, at its
  /// beginning.
  bool signalAtEnd = false;
  bool signalAtBegin = false;

  bool operator==(const RoadEdge&) const = default;
};

/// An edge in one direction of driving: twice the edge's number, and one more for backward.
using RoadArc = std::uint32_t;

constexpr RoadArc roadArc(std::uint32_t edge, bool isForward) {
  return 2 * edge + (isForward ? 0 : 1);
}
constexpr std::uint32_t edgeOf(RoadArc arc) {
  return arc / 2;
}
constexpr bool isForward(RoadArc arc) {
  return arc % 2 == 0;
}
constexpr RoadArc reversed(RoadArc arc) {
  return arc ^ 1U;
}

/// A rule about arcs that follow each other: who has driven all but the last must not drive the
/// last, or, where it is an only one, whoever is on the first must go on like this to the last.
struct RoadRule {
  /// At least two; each leaves the junction to which the one before it leads.
  std::vector<RoadArc> arcs;
  bool isOnly = false;
  /// When it holds; always when there are none.
  std::vector<RoadHours> hours = {};

  auto operator<=>(const RoadRule&) const = default;  // NOLINT(modernize-use-nullptr)
};

/// More than meet anywhere. A search looks at the turns from each to each.
inline constexpr std::size_t kMostRoadsAtAJunction = 64;
inline constexpr std::size_t kMostArcsInARule = 32;

/// The roads of a region as its file keeps them.
struct RoadNetwork {
  std::vector<RoadPoint> junctions;
  /// The OpenStreetMap node of each junction; 0 where it stands for none.
  std::vector<std::int64_t> numbers;
  std::vector<RoadEdge> edges;
  /// The bends of all edges, between their ends, edge after edge.
  std::vector<RoadPoint> bends;
  std::vector<RoadRule> rules;

  bool mayDrive(RoadArc arc) const {
    const RoadUse& use = edges[edgeOf(arc)].use;
    return isForward(arc) ? use.forward : use.backward;
  }
  /// The junction that an arc leaves, and the one to which it leads.
  std::uint32_t tail(RoadArc arc) const {
    return isForward(arc) ? edges[edgeOf(arc)].from : edges[edgeOf(arc)].to;
  }
  std::uint32_t head(RoadArc arc) const { return tail(reversed(arc)); }
  /// Every position of an edge, its junctions included.
  std::vector<RoadPoint> points(std::uint32_t edge) const;

  bool operator==(const RoadNetwork&) const = default;
};

}  // namespace wayloom
