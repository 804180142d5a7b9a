#include "regions/RouterSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace wayloom {

namespace {

constexpr double kUnreached = std::numeric_limits<double>::infinity();
// Who does not live there drives eight minutes round rather than one through.
constexpr double kResidentsFactor = 8;
constexpr float kDiscouragedFactor = 1.5F;

}  // namespace

RouterSearch::RouterSearch(const RoadGraph& graph, const RoadSpot& from, const RoadSpot& to)
    : mGraph(graph),
      mFrom(from),
      mTo(to),
      mFromJunction(graph.junctionAt(from)),
      mToJunction(graph.junctionAt(to)),
      mToSpace(spaceOf(to.coordinate)) {}

double RouterSearch::factor(std::uint32_t edge, bool destinationOnly) const {
  const double residents = destinationOnly ? kResidentsFactor : 1;
  return mFactors.empty() ? residents : residents * static_cast<double>(mFactors[edge]);
}

double RouterSearch::costOf(std::uint32_t edge, double metres) const {
  const double whole = mGraph.metres(edge);
  if (!(whole > 0)) return 0;
  return metres / whole * mGraph.seconds(edge) *
         factor(edge, mGraph.edges()[edge].use.destinationOnly);
}

double RouterSearch::leastCost(std::uint32_t junction) const {
  return chordMetres(mGraph.spaceAt(junction), mToSpace) / mGraph.fastestMetresPerSecond();
}

void RouterSearch::reach(std::uint32_t junction, double cost, Arrival arrival) {
  if (cost >= mJunctions[junction].cost) return;
  mJunctions[junction] = {cost, arrival};
  mOpen.push_back({cost + leastCost(junction), cost, junction});
  std::push_heap(mOpen.begin(), mOpen.end(),
                 [](const Open& a, const Open& b) { return a.least > b.least; });
}

void RouterSearch::start() {
  mJunctions.assign(mGraph.junctionCount(), {kUnreached, {}});
  mOpen.clear();
  mBestCost = kUnreached;
  mBestJunction.reset();
  if (mFromJunction) return reach(*mFromJunction, 0, {mFrom.edge, true, Origin::kStart});
  const RoadEdge& edge = mGraph.edges()[mFrom.edge];
  const double ahead = mGraph.metres(mFrom.edge) - mFrom.alongMetres;
  if (edge.use.forward)
    reach(edge.to, costOf(mFrom.edge, ahead), {mFrom.edge, true, Origin::kStartOnEdge});
  if (edge.use.backward) {
    reach(edge.from, costOf(mFrom.edge, mFrom.alongMetres),
          {mFrom.edge, false, Origin::kStartOnEdge});
  }
}

void RouterSearch::tryDirect() {
  if (mFrom.edge != mTo.edge) return;
  const RoadUse& use = mGraph.edges()[mFrom.edge].use;
  const double ahead = mTo.alongMetres - mFrom.alongMetres;
  if (!(ahead >= 0 ? use.forward : use.backward) && ahead != 0) return;
  mBestCost = costOf(mFrom.edge, std::abs(ahead));
  mLastStep = Step{mFrom.edge, ahead > 0 || (ahead == 0 && use.forward)};
}

void RouterSearch::tryEnd(std::uint32_t junction, double cost) {
  const auto offer = [&](double lastCost, std::optional<Step> lastStep) {
    if (cost + lastCost >= mBestCost) return;
    mBestCost = cost + lastCost;
    mBestJunction = junction;
    mLastStep = lastStep;
  };
  if (mToJunction) {
    if (junction == *mToJunction) offer(0, std::nullopt);
    return;
  }
  const RoadEdge& edge = mGraph.edges()[mTo.edge];
  if (edge.use.forward && junction == edge.from) {
    offer(costOf(mTo.edge, mTo.alongMetres), Step{mTo.edge, true});
  }
  if (edge.use.backward && junction == edge.to) {
    offer(costOf(mTo.edge, mGraph.metres(mTo.edge) - mTo.alongMetres), Step{mTo.edge, false});
  }
}

std::optional<RoadPath> RouterSearch::find() {
  start();
  tryDirect();
  while (!mOpen.empty() && mOpen.front().least < mBestCost) {
    std::pop_heap(mOpen.begin(), mOpen.end(),
                  [](const Open& a, const Open& b) { return a.least > b.least; });
    const Open open = mOpen.back();
    mOpen.pop_back();
    if (open.cost > mJunctions[open.junction].cost) continue;
    tryEnd(open.junction, open.cost);
    for (const RoadArc& arc : mGraph.arcs(open.junction)) {
      const double cost = static_cast<double>(arc.seconds) * factor(arc.edge, arc.destinationOnly);
      reach(arc.target, open.cost + cost, {arc.edge, arc.isForward, Origin::kJunction});
    }
  }
  if (mBestCost == kUnreached) return std::nullopt;
  return path();
}

RoadPath RouterSearch::path() const {
  RoadPath path{mFrom, mTo, {}};
  if (mLastStep) path.steps.push_back(*mLastStep);
  path.startsWithinEdge = !mBestJunction || !mFromJunction;
  path.endsWithinEdge = mLastStep.has_value();
  for (auto junction = mBestJunction; junction;) {
    const Arrival& arrival = mJunctions[*junction].arrival;
    if (arrival.origin == Origin::kStart) break;
    path.steps.push_back({arrival.edge, arrival.isForward});
    if (arrival.origin == Origin::kStartOnEdge) break;
    const RoadEdge& edge = mGraph.edges()[arrival.edge];
    junction = arrival.isForward ? edge.from : edge.to;
  }
  std::reverse(path.steps.begin(), path.steps.end());
  return path;
}

void RouterSearch::discourage(const RoadPath& path) {
  if (mFactors.empty()) mFactors.assign(mGraph.edges().size(), 1);
  for (const Step& step : path.steps) mFactors[step.edge] *= kDiscouragedFactor;
}

}  // namespace wayloom
