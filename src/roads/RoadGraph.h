#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "regions/GroundGeometry.h"
#include "roads/RoadGraphComponents.h"
#include "roads/RoadGraphFile.h"
#include "roads/RoadGraphTree.h"

namespace wayloom {

/// A spot on a road.
struct RoadSpot {
  std::uint32_t edge = 0;
  Coordinate coordinate;
  /// How many positions of the edge's line do not lie beyond the spot.
  std::size_t passed = 1;
  /// Metres along the edge from its beginning.
  double alongMetres = 0;
  /// How far the spot is from where it was looked for.
  double awayMetres = 0;
};

/// A place in space, in metres from the centre of the earth.
using SpacePoint = std::array<double, 3>;

SpacePoint spaceOf(Coordinate coordinate);

/// The straight way through the earth: never longer than one along the ground.
double chordMetres(const SpacePoint& a, const SpacePoint& b);

/// Where a spot lies in the network: in which components one is on leaving it, and from which it
/// can be entered.
struct RoadSpotPlace {
  std::vector<std::uint32_t> exits;
  std::vector<std::uint32_t> entries;

  bool operator==(const RoadSpotPlace&) const = default;
};

/// The roads of one region, ready for driving. Immutable once made, so any number of searches on
/// any threads may use it.
///
/// Searches go from node to node. Most nodes are junctions, with the same numbers. A junction to
/// which a road leads whose driver may not turn everywhere has a further node for who comes that
/// way, with the arcs that are left.
class RoadGraph {
 public:
  /// `network` must be sound, as readRoads() gives it.
  explicit RoadGraph(RoadNetwork network);

  std::size_t junctionCount() const { return mNetwork.junctions.size(); }
  std::size_t nodeCount() const { return mJunctionOf.size(); }
  std::uint32_t junctionOf(std::uint32_t node) const { return mJunctionOf[node]; }
  const std::vector<RoadEdge>& edges() const { return mNetwork.edges; }

  /// Every position of an edge, its junctions included.
  Line line(std::uint32_t edge) const;
  double metres(std::uint32_t edge) const { return mMetres[edge]; }
  double seconds(std::uint32_t edge) const;
  /// The arcs that leave a node.
  std::span<const RoadArc> arcs(std::uint32_t node) const { return mArcs.from(node); }
  const SpacePoint& spaceAt(std::uint32_t node) const { return mSpace[node]; }
  /// The arc that drives an edge, if one may.
  const RoadArc* arcOf(std::uint32_t edge, bool isForward) const;
  double fastestMetresPerSecond() const { return mFastest; }

  /// The spots nearest to a position on each usable road within a radius, nearest first.
  std::vector<RoadSpot> spotsAround(Coordinate position, double radiusMetres) const;
  /// The junction that a spot stands on: from there every road is open, not only the spot's edge.
  std::optional<std::uint32_t> junctionAt(const RoadSpot& spot) const;
  RoadSpotPlace placeOf(const RoadSpot& spot) const;
  /// Whether any way leads from one spot to the other.
  bool leads(const RoadSpot& from, const RoadSpot& to) const;

 private:
  void measure();
  void findArcs();
  void addTurnNodes(std::vector<RoadArc>& arcs, std::vector<std::uint32_t>& sources);
  std::optional<RoadSpot> spotOn(std::uint32_t edge, Coordinate position,
                                 double radiusMetres) const;
  /// The nodes that stand for a junction besides itself.
  std::span<const std::uint32_t> turnNodes(std::uint32_t junction) const;

  RoadNetwork mNetwork;
  std::vector<double> mMetres;
  std::vector<SpacePoint> mSpace;
  double mFastest = 1;
  /// The junction of each node.
  std::vector<std::uint32_t> mJunctionOf;
  /// The nodes that are no junctions, by junction.
  std::vector<std::uint32_t> mTurnNodes;
  RoadArcs mArcs;
  RoadGraphComponents mComponents;
  RoadGraphTree mTree;
};

}  // namespace wayloom
