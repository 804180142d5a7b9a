#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "regions/GroundGeometry.h"
#include "regions/RoadGraphComponents.h"
#include "regions/RoadGraphFile.h"
#include "regions/RoadGraphTree.h"

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

/// The roads of one region, ready for driving. Immutable once made, so any number of searches on
/// any threads may use it.
class RoadGraph {
 public:
  /// `network` must be sound, as readRoads() gives it.
  explicit RoadGraph(RoadNetwork network);

  std::size_t junctionCount() const { return mNetwork.junctions.size(); }
  const std::vector<RoadEdge>& edges() const { return mNetwork.edges; }

  /// Every position of an edge, its junctions included.
  Line line(std::uint32_t edge) const;
  double metres(std::uint32_t edge) const { return mMetres[edge]; }
  double seconds(std::uint32_t edge) const;
  /// The arcs that leave a junction.
  std::span<const RoadArc> arcs(std::uint32_t junction) const { return mArcs.from(junction); }
  const SpacePoint& spaceAt(std::uint32_t junction) const { return mSpace[junction]; }
  double fastestMetresPerSecond() const { return mFastest; }

  /// The spots nearest to a position on each usable road within a radius, nearest first.
  std::vector<RoadSpot> spotsAround(Coordinate position, double radiusMetres) const;
  /// The junction that a spot stands on: from there every road is open, not only the spot's edge.
  std::optional<std::uint32_t> junctionAt(const RoadSpot& spot) const;
  /// Whether any way leads from one spot to the other.
  bool leads(const RoadSpot& from, const RoadSpot& to) const;
  /// Whether a spot can stand for another when it is asked where a way leads: both are in the same
  /// place of the network.
  bool areAlike(const RoadSpot& a, const RoadSpot& b) const;

 private:
  void measure();
  void findArcs();
  std::optional<RoadSpot> spotOn(std::uint32_t edge, Coordinate position,
                                 double radiusMetres) const;
  /// The components in which one is on leaving a spot's edge, and before entering it.
  std::uint32_t exitComponent(const RoadSpot& spot) const;
  std::uint32_t entryComponent(const RoadSpot& spot) const;

  RoadNetwork mNetwork;
  std::vector<double> mMetres;
  std::vector<SpacePoint> mSpace;
  double mFastest = 1;
  RoadArcs mArcs;
  RoadGraphComponents mComponents;
  RoadGraphTree mTree;
};

}  // namespace wayloom
