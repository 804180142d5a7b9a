#include "roads/RouterSearch.h"

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

double RouterSearch::leastCost(std::uint32_t node) const {
  return chordMetres(mGraph.spaceAt(node), mToSpace) / mGraph.fastestMetresPerSecond();
}

void RouterSearch::reach(std::uint32_t node, double cost, Arrival arrival) {
  if (cost >= mNodes[node].cost) return;
  mNodes[node] = {cost, arrival};
  mOpen.push_back({cost + leastCost(node), cost, node});
  std::push_heap(mOpen.begin(), mOpen.end(),
                 [](const Open& a, const Open& b) { return a.least > b.least; });
}

void RouterSearch::start() {
  mNodes.assign(mGraph.nodeCount(), {kUnreached, {}});
  mOpen.clear();
  mBestCost = kUnreached;
  mBestNode.reset();
  if (mFromJunction) return reach(*mFromJunction, 0, {mFrom.edge, 0, true, Origin::kStart});
  for (const bool isForward : {true, false}) {
    const RoadArc* arc = mGraph.arcOf(mFrom.edge, isForward);
    if (!arc) continue;
    const double ahead =
        isForward ? mGraph.metres(mFrom.edge) - mFrom.alongMetres : mFrom.alongMetres;
    reach(arc->target, costOf(mFrom.edge, ahead), {mFrom.edge, 0, isForward, Origin::kStartOnEdge});
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

void RouterSearch::offer(std::uint32_t node, double cost, std::optional<Step> lastStep) {
  if (cost >= mBestCost) return;
  mBestCost = cost;
  mBestNode = node;
  mLastStep = lastStep;
}

void RouterSearch::tryEnd(std::uint32_t node, double cost) {
  if (mToJunction && mGraph.junctionOf(node) == *mToJunction) offer(node, cost, std::nullopt);
}

void RouterSearch::tryEndOn(const RoadArc& arc, std::uint32_t node, double cost) {
  if (mToJunction || arc.edge != mTo.edge) return;
  const double metres = arc.isForward ? mTo.alongMetres : mGraph.metres(mTo.edge) - mTo.alongMetres;
  offer(node, cost + costOf(mTo.edge, metres), Step{mTo.edge, arc.isForward});
}

// Who is on a road turns back at its end, not at a crossing to get round a forbidden turn.
bool RouterSearch::turnsBack(const RoadArc& arc, std::uint32_t node) const {
  const Arrival& arrival = mNodes[node].arrival;
  return arc.edge == arrival.edge && arrival.origin != Origin::kStart &&
         mGraph.arcs(node).size() > 1;
}

std::optional<RoadPath> RouterSearch::find() {
  // Each node keeps one way to it. Should that be one that only turning back leads on from, there
  // may be none without; this is rare.
  search(TurningBack::kAtDeadEnds);
  if (mBestCost == kUnreached) search(TurningBack::kAnywhere);
  if (mBestCost == kUnreached) return std::nullopt;
  return path();
}

void RouterSearch::search(TurningBack where) {
  start();
  tryDirect();
  while (!mOpen.empty() && mOpen.front().least < mBestCost) {
    std::pop_heap(mOpen.begin(), mOpen.end(),
                  [](const Open& a, const Open& b) { return a.least > b.least; });
    const Open open = mOpen.back();
    mOpen.pop_back();
    if (open.cost > mNodes[open.node].cost) continue;
    tryEnd(open.node, open.cost);
    for (const RoadArc& arc : mGraph.arcs(open.node)) {
      if (where == TurningBack::kAtDeadEnds && turnsBack(arc, open.node)) continue;
      const double cost = static_cast<double>(arc.seconds) * factor(arc.edge, arc.destinationOnly);
      tryEndOn(arc, open.node, open.cost);
      reach(arc.target, open.cost + cost, {arc.edge, open.node, arc.isForward, Origin::kJunction});
    }
  }
}

RoadPath RouterSearch::path() const {
  RoadPath path{mFrom, mTo, {}};
  if (mLastStep) path.steps.push_back(*mLastStep);
  path.startsWithinEdge = !mBestNode || !mFromJunction;
  path.endsWithinEdge = mLastStep.has_value();
  for (auto node = mBestNode; node;) {
    const Arrival& arrival = mNodes[*node].arrival;
    if (arrival.origin == Origin::kStart) break;
    path.steps.push_back({arrival.edge, arrival.isForward});
    if (arrival.origin == Origin::kStartOnEdge) break;
    node = arrival.before;
  }
  std::reverse(path.steps.begin(), path.steps.end());
  return path;
}

void RouterSearch::discourage(const RoadPath& path) {
  if (mFactors.empty()) mFactors.assign(mGraph.edges().size(), 1);
  for (const Step& step : path.steps) mFactors[step.edge] *= kDiscouragedFactor;
}

}  // namespace wayloom
