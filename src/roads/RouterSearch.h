#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include "roads/RoadGraph.h"
#include "roads/RoadQueue.h"

namespace wayloom {

/// A way to drive between two spots: stretches of edges in their order.
struct RoadPath {
  struct Step {
    RoadArc arc = 0;
    /// Metres along the edge from its beginning; where the step begins and ends.
    double begin = 0;
    double end = 0;
  };

  RoadSpot from;
  RoadSpot to;
  std::vector<Step> steps;
  /// What the search counted: seconds on the way and for turns, more on roads for residents.
  double cost = 0;
};

/// Finds quickest ways on a graph (A* from arc to arc with the straight line as the bound), with
/// all that a search writes down, which the next one uses again. Used by one thread; the graph must
/// outlive it.
class RouterSearch {
 public:
  explicit RouterSearch(const RoadGraph& graph);

  const RoadGraph& graph() const { return mGraph; }

  /// Takes a new question: two spots, and when the drive starts. Where that is not known, every
  /// rule holds.
  void ask(const RoadSpot& from, const RoadSpot& to, const std::optional<RoadTime>& start);
  /// The quickest way that goes through a road for its residents only where there is hardly
  /// another; nothing when no way leads there.
  std::optional<RoadPath> find();
  /// Makes later answers to this question avoid the roads of a path, so that they differ from it.
  void discourage(const RoadPath& path);

 private:
  using State = RoadRuleStates::State;
  /// How a state was reached, of use in the search that wrote it only.
  struct Label {
    double cost = 0;
    /// Twice the search's number, and one more once nothing better can come.
    std::uint32_t stamp = 0;
    /// The state before, and in the highest bit whether one turned round on this arc.
    std::uint32_t before = 0;
  };

  double factor(std::uint32_t edge) const {
    return mFactors.empty() ? 1 : static_cast<double>(mFactors[edge]);
  }
  double costOf(std::uint32_t edge, double metres) const;
  bool isUseful(const RoadGraph::Departure& departure) const {
    return !departure.isBlind ||
           std::find(mBlindArcs.begin(), mBlindArcs.end(), departure.arc) != mBlindArcs.end();
  }
  bool isFinal(State state) const { return mLabels[state].stamp == mStamp + 1; }
  bool write(State state, double cost, std::uint32_t before);
  void reach(State state, double cost, std::uint32_t before, std::uint32_t junction);
  void drive(const RoadGraph::Departure& departure, double cost, std::uint32_t before);
  void begin();
  void start();
  void tryDirect();
  void tryEndOn(RoadArc arc, double cost, std::uint32_t before);
  void goOn(State state);
  void followThrough();
  void goOnBound(State state, const RoadGraph::Arrival& arrival, double cost);
  void turnOnRoad(State before, State onRoad, double cost);
  RoadPath path() const;
  void addSteps(State state, RoadPath& path) const;
  RoadPath::Step whole(RoadArc arc) const;

  const RoadGraph& mGraph;
  RoadSpot mFrom;
  RoadSpot mTo;
  std::optional<std::uint32_t> mFromJunction;
  std::optional<std::uint32_t> mToJunction;
  SpacePoint mToSpace{};
  double mSecondsPerMetre;
  RoadRuleStates::Holding mHolding;
  std::vector<Label> mLabels;
  std::uint32_t mStamp = 0;
  RoadQueue mOpen;
  /// States with but one way on, which is followed at once.
  std::vector<State> mThrough;
  /// The blind arcs that lead to the end.
  std::vector<RoadArc> mBlindArcs;
  /// How much worse each edge counts; empty as long as none does.
  std::vector<float> mFactors;

  double mBestCost = 0;
  /// The state before the last arc of the best way, and that arc; none where it ends with the
  /// state.
  std::uint32_t mBestState = 0;
  std::optional<RoadArc> mLastArc;
};

}  // namespace wayloom
