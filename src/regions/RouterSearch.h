#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "regions/RoadGraph.h"

namespace wayloom {

/// A way to drive between two spots: the edges in their order.
struct RoadPath {
  struct Step {
    std::uint32_t edge = 0;
    bool isForward = true;
  };

  RoadSpot from;
  RoadSpot to;
  std::vector<Step> steps;
  /// Whether the way begins and ends within its first and last edge, and not at a junction.
  bool startsWithinEdge = true;
  bool endsWithinEdge = true;
};

/// One question to a road graph, with all that the search for its answer writes down (A* with the
/// straight line as the bound). Used by one thread; the graph must outlive it.
class RouterSearch {
 public:
  RouterSearch(const RoadGraph& graph, const RoadSpot& from, const RoadSpot& to);

  /// The quickest way that goes through a road for its residents only where there is hardly
  /// another; nothing when no way leads there.
  std::optional<RoadPath> find();
  /// Makes later answers avoid the roads of a path, so that they differ from it.
  void discourage(const RoadPath& path);

 private:
  using Step = RoadPath::Step;
  enum class Origin : std::uint8_t { kJunction, kStartOnEdge, kStart };
  /// How a junction was reached: over which edge and where from, unless it is the start itself.
  struct Arrival {
    std::uint32_t edge = 0;
    bool isForward = true;
    Origin origin = Origin::kJunction;
  };
  struct Junction {
    double cost;
    Arrival arrival;
  };
  struct Open {
    double least;
    double cost;
    std::uint32_t junction;
  };

  double factor(std::uint32_t edge, bool destinationOnly) const;
  double costOf(std::uint32_t edge, double metres) const;
  double leastCost(std::uint32_t junction) const;
  void reach(std::uint32_t junction, double cost, Arrival arrival);
  void start();
  void tryDirect();
  void tryEnd(std::uint32_t junction, double cost);
  RoadPath path() const;

  const RoadGraph& mGraph;
  const RoadSpot mFrom;
  const RoadSpot mTo;
  const std::optional<std::uint32_t> mFromJunction;
  const std::optional<std::uint32_t> mToJunction;
  const SpacePoint mToSpace;
  std::vector<Junction> mJunctions;
  std::vector<Open> mOpen;
  /// How much worse each edge counts; empty as long as none does.
  std::vector<float> mFactors;

  double mBestCost = 0;
  /// The junction before the last step of the best way; none when it stays on one edge.
  std::optional<std::uint32_t> mBestJunction;
  /// None when the way ends at that junction.
  std::optional<Step> mLastStep;
};

}  // namespace wayloom
