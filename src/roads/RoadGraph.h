#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "regions/GroundGeometry.h"
#include "roads/RoadGraphComponents.h"
#include "roads/RoadGraphTree.h"
#include "roads/RoadNetwork.h"
#include "roads/RoadRuleStates.h"
#include "roads/TurnCost.h"

namespace wayloom {

/// A spot on a road.
struct RoadSpot {
  std::uint32_t edge = 0;
  Coordinate coordinate;
  /// Metres along the edge from its beginning.
  double alongMetres = 0;
  /// How far the spot is from where it was looked for.
  double awayMetres = 0;
};

/// A place in space, in metres from the centre of the earth.
using SpacePoint = std::array<double, 3>;

SpacePoint spaceOf(Coordinate coordinate);

/// The straight way through the earth: never longer than one along the ground.
inline double chordMetres(const SpacePoint& a, const SpacePoint& b) {
  const double x = a[0] - b[0];
  const double y = a[1] - b[1];
  const double z = a[2] - b[2];
  return std::sqrt(x * x + y * y + z * z);
}

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
/// Searches go from arc to arc, an arc being an edge in one direction, so that every turn can have
/// its cost and every rule its say.
class RoadGraph {
 public:
  /// Where an arc leads to.
  struct Arrival {
    std::uint32_t junction = 0;
    Heading heading;
    bool hasSignal = false;
    bool keepsLeft = false;
    bool isDeadEnd = false;
    /// Whether three or more roads meet there.
    bool isCrossing = false;
    /// Whether a rule has a say in what is driven next, or one comes from a ferry, on which nobody
    /// can have turned round.
    bool isBound = false;
  };
  /// An arc that may be driven, at the junction that it leaves.
  struct Departure {
    RoadArc arc = 0;
    /// Seconds, a road for residents counted as kResidentsFactor times as long.
    float cost = 0;
    Heading heading;
    /// The junction to which it leads.
    std::uint32_t head = 0;
    bool isBlind = false;
    /// Whether there is but one way on that is not blind, and no rule about it.
    bool isThrough = false;
  };
  /// Who does not live there drives eight minutes round rather than one through.
  static constexpr double kResidentsFactor = 8;

  /// `network` must be sound, as readRoads() gives it.
  explicit RoadGraph(RoadNetwork network);

  const RoadNetwork& network() const { return mNetwork; }
  const std::vector<RoadEdge>& edges() const { return mNetwork.edges; }
  const RoadRuleStates& rules() const { return mRules; }

  /// Every position of an edge, its junctions included.
  Line line(std::uint32_t edge) const;
  double metres(std::uint32_t edge) const { return mMetres[edge]; }
  double seconds(std::uint32_t edge) const;
  const Arrival& arrival(RoadArc arc) const { return mArrivals[arc]; }
  std::span<const Departure> departures(std::uint32_t junction) const {
    return std::span(mDepartures)
        .subspan(mFirst[junction], mFirst[junction + 1] - mFirst[junction]);
  }
  /// Whether an arc leads to nothing but dead ends: it is of use to who wants there, and to who
  /// must turn round since a rule forbids the way back.
  bool isBlind(RoadArc arc) const { return mIsBlind[arc]; }
  /// The blind arcs over which one comes to a spot from where arcs are not blind.
  std::vector<RoadArc> blindArcsTo(const RoadSpot& spot) const;
  /// What it takes to go on from an arc to one that leaves its junction, before that is driven.
  double turnSeconds(const Arrival& arrival, Heading heading) const {
    return (arrival.hasSignal ? kSignalSeconds : 0) +
           (arrival.isCrossing ? wayloom::turnSeconds(arrival.heading, heading, arrival.keepsLeft)
                               : 0);
  }
  const SpacePoint& spaceAt(std::uint32_t junction) const { return mSpace[junction]; }
  double fastestMetresPerSecond() const { return mFastest; }

  /// The spots nearest to a position on each usable road within a radius, nearest first.
  std::vector<RoadSpot> spotsAround(Coordinate position, double radiusMetres) const;
  /// The junction that a spot stands on: from there every road is open, not only the spot's edge.
  std::optional<std::uint32_t> junctionAt(const RoadSpot& spot) const;
  RoadSpotPlace placeOf(const RoadSpot& spot) const;
  /// Whether any way leads from one spot to the other, rules aside.
  bool leads(const RoadSpot& from, const RoadSpot& to) const;

 private:
  void measure();
  void measure(std::uint32_t edge, const Line& line);
  void findBlindArcs();
  void findArrivals();
  void findDepartures();
  void findThroughArcs();
  std::optional<RoadSpot> spotOn(std::uint32_t edge, Coordinate position,
                                 double radiusMetres) const;

  RoadNetwork mNetwork;
  std::vector<double> mMetres;
  std::vector<SpacePoint> mSpace;
  double mFastest = 1;
  /// By arc: where it heads when it is entered. Where it leads to.
  std::vector<Heading> mHeadings;
  std::vector<Arrival> mArrivals;
  std::vector<bool> mIsBlind;
  /// Of each junction among dead ends, the blind arc that leads to it.
  std::unordered_map<std::uint32_t, RoadArc> mBlindArcs;
  std::vector<Departure> mDepartures;
  /// For each junction the number of its first departure; one more at the end.
  std::vector<std::uint32_t> mFirst;
  RoadRuleStates mRules;
  RoadGraphComponents mComponents;
  RoadGraphTree mTree;
};

/// The position at so many metres along a line.
Coordinate positionAlong(const Line& line, double metres);

}  // namespace wayloom
