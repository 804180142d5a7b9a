#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "roads/RoadGraph.h"

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
  enum class TurningBack { kAtDeadEnds, kAnywhere };
  enum class Origin : std::uint8_t { kJunction, kStartOnEdge, kStart };
  /// How a node was reached: over which edge and from which node, unless it is the start itself.
  struct Arrival {
    std::uint32_t edge = 0;
    std::uint32_t before = 0;
    bool isForward = true;
    Origin origin = Origin::kJunction;
  };
  struct Node {
    double cost;
    Arrival arrival;
  };
  struct Open {
    double least;
    double cost;
    std::uint32_t node;
  };

  double factor(std::uint32_t edge, bool destinationOnly) const;
  double costOf(std::uint32_t edge, double metres) const;
  double leastCost(std::uint32_t node) const;
  void reach(std::uint32_t node, double cost, Arrival arrival);
  void start();
  void search(TurningBack where);
  bool turnsBack(const RoadArc& arc, std::uint32_t node) const;
  void tryDirect();
  void tryEnd(std::uint32_t node, double cost);
  void tryEndOn(const RoadArc& arc, std::uint32_t node, double cost);
  void offer(std::uint32_t node, double cost, std::optional<Step> lastStep);
  RoadPath path() const;

  const RoadGraph& mGraph;
  const RoadSpot mFrom;
  const RoadSpot mTo;
  const std::optional<std::uint32_t> mFromJunction;
  const std::optional<std::uint32_t> mToJunction;
  const SpacePoint mToSpace;
  std::vector<Node> mNodes;
  std::vector<Open> mOpen;
  /// How much worse each edge counts; empty as long as none does.
  std::vector<float> mFactors;

  double mBestCost = 0;
  /// The node before the last step of the best way; none when it stays on one edge.
  std::optional<std::uint32_t> mBestNode;
  /// None when the way ends at that node.
  std::optional<Step> mLastStep;
};

}  // namespace wayloom
