#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "roads/RoadNetwork.h"

namespace wayloom {

/// A turn that is forbidden, or the only one allowed, as it was surveyed: from each of some ways,
/// over a node or over whole ways, to each of some ways. Ways and nodes are given by number.
struct RoadRestriction {
  std::vector<std::int64_t> from;
  std::optional<std::int64_t> viaNode;
  /// In the order in which they are driven.
  std::vector<std::int64_t> viaWays;
  std::vector<std::int64_t> to;
  bool isOnly = false;
  /// When it holds; always when there are none.
  std::vector<RoadHours> hours = {};
};

/// Finds the arcs of a network that restrictions speak of.
class RestrictionFitter {
 public:
  using WayEdges = std::map<std::int64_t, std::vector<std::uint32_t>>;

  /// `wayEdges` are the edges of each way that restrictions name, in the order of the way; both
  /// outlive the fitter.
  RestrictionFitter(const RoadNetwork& network, const WayEdges& wayEdges)
      : mNetwork(network), mWayEdges(wayEdges) {}

  /// The rules of a restriction, over this junction where it has a node. None come of a way that
  /// cars do not drive; false where the ways do not meet like this, or in more than one manner.
  bool fit(const RoadRestriction& restriction, std::optional<std::uint32_t> via,
           std::vector<RoadRule>& rules) const;

 private:
  using Arcs = std::vector<RoadArc>;

  std::vector<Arcs> wholeWays(std::int64_t way) const;
  std::vector<Arcs> viaRuns(const RoadRestriction& restriction) const;
  Arcs arriving(std::int64_t way, std::uint32_t junction) const;
  Arcs leaving(std::int64_t way, std::uint32_t junction) const;
  std::vector<Arcs> over(std::int64_t from, const Arcs& run, std::int64_t to,
                         std::optional<std::uint32_t> via) const;

  const RoadNetwork& mNetwork;
  const WayEdges& mWayEdges;
};

}  // namespace wayloom
