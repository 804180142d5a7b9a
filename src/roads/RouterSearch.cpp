#include "roads/RouterSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace wayloom {

namespace {

constexpr double kUnreached = std::numeric_limits<double>::infinity();
constexpr float kDiscouragedFactor = 1.5F;
constexpr std::uint32_t kTurnedOnRoad = 1U << 31;
// Instead of a state before: the way begins with this arc, or is nothing but a part of it.
constexpr std::uint32_t kStart = kTurnedOnRoad - 1;
constexpr std::uint32_t kDirect = kTurnedOnRoad - 2;
constexpr std::uint32_t kLastStamp = std::numeric_limits<std::uint32_t>::max() - 3;

}  // namespace

RouterSearch::RouterSearch(const RoadGraph& graph)
    : mGraph(graph),
      mSecondsPerMetre(1 / graph.fastestMetresPerSecond()),
      mLabels(graph.rules().count()) {}

void RouterSearch::ask(const RoadSpot& from, const RoadSpot& to,
                       const std::optional<RoadTime>& start) {
  mFrom = from;
  mTo = to;
  mFromJunction = mGraph.junctionAt(from);
  mToJunction = mGraph.junctionAt(to);
  mToSpace = spaceOf(to.coordinate);
  mHolding = mGraph.rules().holdingAt(start);
  mFactors.clear();
  mBlindArcs = mGraph.blindArcsTo(to);
}

double RouterSearch::costOf(std::uint32_t edge, double metres) const {
  const double whole = mGraph.metres(edge);
  if (!(whole > 0)) return 0;
  const double residents =
      mGraph.edges()[edge].use.destinationOnly ? RoadGraph::kResidentsFactor : 1;
  return metres / whole * mGraph.seconds(edge) * residents * factor(edge);
}

bool RouterSearch::write(State state, double cost, std::uint32_t before) {
  Label& label = mLabels[state];
  if (label.stamp >= mStamp && label.cost <= cost) return false;
  label = {cost, mStamp, before};
  return true;
}

void RouterSearch::reach(State state, double cost, std::uint32_t before, std::uint32_t junction) {
  if (!write(state, cost, before)) return;
  const double least = cost + chordMetres(mGraph.spaceAt(junction), mToSpace) * mSecondsPerMetre;
  mOpen.add({static_cast<float>(least), state});
}

void RouterSearch::drive(const RoadGraph::Departure& departure, double cost, std::uint32_t before) {
  tryEndOn(departure.arc, cost, before);
  cost += static_cast<double>(departure.cost) * factor(edgeOf(departure.arc));
  if (!departure.isThrough) return reach(departure.arc, cost, before, departure.head);
  if (write(departure.arc, cost, before)) mThrough.push_back(departure.arc);
}

// Makes what earlier searches wrote down void.
void RouterSearch::begin() {
  mOpen.clear();
  mThrough.clear();
  if (mStamp >= kLastStamp) {
    std::fill(mLabels.begin(), mLabels.end(), Label{});
    mStamp = 0;
  }
  mStamp += 2;
  mBestCost = kUnreached;
  mBestState = kStart;
  mLastArc.reset();
}

void RouterSearch::start() {
  if (mFromJunction) {
    for (const auto& departure : mGraph.departures(*mFromJunction)) {
      drive(departure, 0, kStart);
    }
    return;
  }
  for (const bool isForward : {true, false}) {
    const RoadArc arc = roadArc(mFrom.edge, isForward);
    if (!mGraph.network().mayDrive(arc)) continue;
    const double ahead =
        isForward ? mGraph.metres(mFrom.edge) - mFrom.alongMetres : mFrom.alongMetres;
    reach(arc, costOf(mFrom.edge, ahead), kStart, mGraph.network().head(arc));
  }
}

void RouterSearch::tryDirect() {
  if (mFromJunction && mFromJunction == mToJunction) {
    mBestCost = 0;
    return;
  }
  if (mFrom.edge != mTo.edge) return;
  const double ahead = mTo.alongMetres - mFrom.alongMetres;
  const RoadArc arc = roadArc(mFrom.edge, ahead > 0);
  if (!mGraph.network().mayDrive(arc) && ahead != 0) return;
  mBestCost = costOf(mFrom.edge, std::abs(ahead));
  mBestState = kDirect;
  mLastArc = arc;
}

// `cost` is that of standing at the arc's beginning.
void RouterSearch::tryEndOn(RoadArc arc, double cost, std::uint32_t before) {
  if (mToJunction || edgeOf(arc) != mTo.edge) return;
  const double metres =
      isForward(arc) ? mTo.alongMetres : mGraph.metres(mTo.edge) - mTo.alongMetres;
  cost += costOf(mTo.edge, metres);
  if (cost >= mBestCost) return;
  mBestCost = cost;
  mBestState = before;
  mLastArc = arc;
}

// Turning round takes longer than any turn, so it gains nothing where no rule forbids one: who
// wants back turns round earlier. So nobody tries dead ends here. Who has turned round once because
// of a rule over several roads may do it again, to come as if from elsewhere.
void RouterSearch::goOn(State state) {
  const RoadArc arc = mGraph.rules().arcOf(state);
  const RoadGraph::Arrival& arrival = mGraph.arrival(arc);
  const double cost = mLabels[state].cost;
  if (mToJunction == arrival.junction && cost < mBestCost) {
    mBestCost = cost;
    mBestState = state;
    mLastArc.reset();
    return;
  }
  const bool hasTurned = (mLabels[state].before & kTurnedOnRoad) != 0;
  if (arrival.isBound || hasTurned || state != arc) return goOnBound(state, arrival, cost);
  for (const auto& departure : mGraph.departures(arrival.junction)) {
    const bool isBack = departure.arc == reversed(arc);
    if ((isBack && !arrival.isDeadEnd) || !isUseful(departure)) continue;
    const double turned =
        cost + mGraph.turnSeconds(arrival, departure.heading) + (isBack ? kTurnRoundSeconds : 0);
    drive(departure, turned, state);
  }
}

void RouterSearch::followThrough() {
  while (!mThrough.empty()) {
    const State state = mThrough.back();
    mThrough.pop_back();
    if (mLabels[state].cost < mBestCost) goOn(state);
  }
}

void RouterSearch::goOnBound(State state, const RoadGraph::Arrival& arrival, double cost) {
  const RoadArc arc = mGraph.rules().arcOf(state);
  for (const auto& departure : mGraph.departures(arrival.junction)) {
    const bool isBack = departure.arc == reversed(arc);
    if (isBack && !arrival.isDeadEnd) continue;
    const auto next = mGraph.rules().next(state, departure.arc, mHolding);
    if (!next) continue;
    const double turned =
        cost + mGraph.turnSeconds(arrival, departure.heading) + (isBack ? kTurnRoundSeconds : 0);
    tryEndOn(departure.arc, turned, state);
    reach(*next, turned + static_cast<double>(departure.cost) * factor(edgeOf(departure.arc)),
          state, departure.head);
    turnOnRoad(state, *next, turned);
  }
}

// Drives a little of the next arc and turns round. `cost` is that of standing at its beginning.
void RouterSearch::turnOnRoad(State before, State onRoad, double cost) {
  const RoadArc arc = mGraph.rules().arcOf(onRoad);
  const std::uint32_t edge = edgeOf(arc);
  if (mGraph.edges()[edge].use.isFerry || !mGraph.network().mayDrive(reversed(arc))) return;
  const auto back = mGraph.rules().next(onRoad, reversed(arc), mHolding);
  if (!back) return;
  const double metres = std::min(kTurnOnRoadMetres, mGraph.metres(edge) / 2);
  reach(*back, cost + 2 * costOf(edge, metres) + kTurnRoundSeconds, before | kTurnedOnRoad,
        mGraph.network().tail(arc));
}

std::optional<RoadPath> RouterSearch::find() {
  begin();
  tryDirect();
  start();
  followThrough();
  while (!mOpen.isEmpty() && static_cast<double>(mOpen.first().least) < mBestCost) {
    const State state = mOpen.first().state;
    mOpen.removeFirst();
    if (isFinal(state)) continue;
    ++mLabels[state].stamp;
    goOn(state);
    followThrough();
  }
  if (mBestCost == kUnreached) return std::nullopt;
  return path();
}

RoadPath::Step RouterSearch::whole(RoadArc arc) const {
  const double metres = mGraph.metres(edgeOf(arc));
  return isForward(arc) ? RoadPath::Step{arc, 0, metres} : RoadPath::Step{arc, metres, 0};
}

// The last first.
void RouterSearch::addSteps(State state, RoadPath& path) const {
  const RoadArc arc = mGraph.rules().arcOf(state);
  path.steps.push_back(whole(arc));
  if ((mLabels[state].before & kTurnedOnRoad) == 0) return;
  RoadPath::Step& back = path.steps.back();
  const double metres = std::min(kTurnOnRoadMetres, mGraph.metres(edgeOf(arc)) / 2);
  back.begin = isForward(arc) ? metres : mGraph.metres(edgeOf(arc)) - metres;
  // Driven towards the far end until there.
  RoadPath::Step there = whole(reversed(arc));
  there.end = back.begin;
  path.steps.push_back(there);
}

RoadPath RouterSearch::path() const {
  RoadPath path{mFrom, mTo, {}, mBestCost};
  if (mLastArc) {
    path.steps.push_back(whole(*mLastArc));
    path.steps.back().end = mTo.alongMetres;
  }
  std::uint32_t state = mBestState;
  for (; state < kDirect; state = mLabels[state].before & ~kTurnedOnRoad) addSteps(state, path);
  std::reverse(path.steps.begin(), path.steps.end());
  if (!path.steps.empty() && (!mFromJunction || mBestState == kDirect)) {
    path.steps.front().begin = mFrom.alongMetres;
  }
  return path;
}

void RouterSearch::discourage(const RoadPath& path) {
  if (mFactors.empty()) mFactors.assign(mGraph.edges().size(), 1);
  for (const RoadPath::Step& step : path.steps) mFactors[edgeOf(step.arc)] *= kDiscouragedFactor;
}

}  // namespace wayloom
