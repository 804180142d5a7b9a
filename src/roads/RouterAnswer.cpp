#include "roads/RouterAnswer.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
#include <unordered_set>
#include <utility>

namespace wayloom {

namespace {

constexpr double kSlowestAlternate = 1.5;
constexpr double kMostShared = 0.7;
constexpr int kTriesForAnAlternate = 3;
// More parts of a network than this do not meet in one place.
constexpr std::size_t kMostUnlikeSpots = 16;
// Of pairs of spots that rules keep apart, only so many are asked about.
constexpr std::size_t kMostTries = 8;

using Spots = std::vector<RoadSpot>;
using SpotPair = std::pair<RoadSpot, RoadSpot>;

// Of spots that lead to the same places only the nearest is worth asking about.
Spots unlike(const RoadGraph& graph, const Spots& spots) {
  Spots result;
  std::vector<RoadSpotPlace> places;
  for (const RoadSpot& spot : spots) {
    if (result.size() == kMostUnlikeSpots) break;
    RoadSpotPlace place = graph.placeOf(spot);
    const bool isKnown =
        std::any_of(places.begin(), places.end(), [&](const RoadSpotPlace& nearer) {
          const RoadSpot& other = result[static_cast<std::size_t>(&nearer - places.data())];
          return nearer == place && (place.entries == place.exits || other.edge == spot.edge);
        });
    if (isKnown) continue;
    result.push_back(spot);
    places.push_back(std::move(place));
  }
  return result;
}

// The pairs between which a way leads unless rules forbid it, the nearest first.
std::vector<SpotPair> joined(const RoadGraph& graph, const Spots& starts, const Spots& ends) {
  std::vector<SpotPair> pairs;
  for (const RoadSpot& start : starts) {
    for (const RoadSpot& end : ends) {
      if (graph.leads(start, end)) pairs.emplace_back(start, end);
    }
  }
  std::stable_sort(pairs.begin(), pairs.end(), [](const SpotPair& a, const SpotPair& b) {
    return a.first.awayMetres + a.second.awayMetres < b.first.awayMetres + b.second.awayMetres;
  });
  return pairs;
}

// Most places have a road at hand; looking wider costs much more.
Spots spotsNear(const RoadGraph& graph, Coordinate position) {
  for (const double radius : {60.0, 250.0}) {
    const Spots spots = graph.spotsAround(position, radius);
    if (!spots.empty()) return unlike(graph, spots);
  }
  return unlike(graph, graph.spotsAround(position, kFarthestRoadMetres));
}

// Asks about the nearest pairs first. Almost always the first has an answer.
std::optional<RoadPath> findBetween(RouterSearch& search, const Spots& starts, const Spots& ends,
                                    const std::optional<RoadTime>& time) {
  const auto pairs = joined(search.graph(), starts, ends);
  for (const auto& [start, end] : std::span(pairs).first(std::min(pairs.size(), kMostTries))) {
    search.ask(start, end, time);
    if (auto path = search.find()) return path;
  }
  return std::nullopt;
}

Result<RoadPath> quickest(RouterSearch& search, Coordinate from, Coordinate to,
                          const std::optional<RoadTime>& time) {
  const RoadGraph& graph = search.graph();
  const std::string metres = std::to_string(static_cast<int>(kFarthestRoadMetres));
  const Spots starts = spotsNear(graph, from);
  if (starts.empty()) return Failure{"there is no road within " + metres + " m of the start"};
  const Spots ends = spotsNear(graph, to);
  if (ends.empty()) return Failure{"there is no road within " + metres + " m of the end"};
  if (auto path = findBetween(search, starts, ends, time)) return std::move(*path);
  const auto allNear = [&](Coordinate position) {
    return unlike(graph, graph.spotsAround(position, kFarthestRoadMetres));
  };
  if (auto path = findBetween(search, allNear(from), allNear(to), time)) return std::move(*path);
  return Failure{"no road leads from the start to the end"};
}

// Goes on to a position, as fast as allowed.
void append(Route& route, Coordinate position, float limit) {
  if (route.geometry.back() == position) return;
  route.geometry.push_back(position);
  route.limits.push_back(limit);
}

// The positions of an edge on a step of a path, but not where the step begins.
void appendStep(const RoadGraph& graph, const RoadPath::Step& step, Coordinate last, Route& route) {
  const std::uint32_t edge = edgeOf(step.arc);
  const auto limit = static_cast<float>(graph.edges()[edge].use.kmPerHour / 3.6);
  Line positions = graph.line(edge);
  const double whole = graph.metres(edge);
  double begin = step.begin;
  double end = step.end;
  if (!isForward(step.arc)) {
    std::reverse(positions.begin(), positions.end());
    begin = whole - begin;
    end = whole - end;
  }
  double along = 0;
  for (std::size_t at = 1; at + 1 < positions.size(); ++at) {
    along += distanceMetres(positions[at - 1], positions[at]);
    if (begin < along && along < end) append(route, positions[at], limit);
  }
  append(route, last, limit);
}

// Where a step ends, when the path goes on.
Coordinate endOf(const RoadGraph& graph, const RoadPath::Step& step) {
  const std::uint32_t edge = edgeOf(step.arc);
  const auto& network = graph.network();
  const double whole = graph.metres(edge);
  if (isForward(step.arc) ? step.end >= whole : step.end <= 0) {
    return coordinateOf(network.junctions[network.head(step.arc)]);
  }
  return positionAlong(graph.line(edge), step.end);
}

// Signals are red for half of those who come, by chance, but always the same for the same drive: a
// generator (SplitMix64) whose seeds are the spots of the drive and the arc that leads there.
std::optional<double> signalSeconds(const RoadPath& path, RoadArc arc) {
  const auto mixed = [](std::uint64_t value) {
    value += 0x9E3779B97F4A7C15;
    value = (value ^ value >> 30) * 0xBF58476D1CE4E5B9;
    value = (value ^ value >> 27) * 0x94D049BB133111EB;
    return value ^ value >> 31;
  };
  std::uint64_t chance = mixed(arc);
  for (const RoadSpot* spot : {&path.from, &path.to}) {
    const RoadPoint point = roadPoint(spot->coordinate);
    for (const std::int32_t each : {point.longitude, point.latitude}) {
      chance = mixed(chance ^ static_cast<std::uint32_t>(each));
    }
  }
  if (chance % 2 == 0) return std::nullopt;
  // The mean over all who come is what searches reckon with.
  return 2 * kSignalSeconds * static_cast<double>(1 + (chance >> 1) % 1999) / 1000;
}

// Where one waits before going on from one step to the next.
void appendStop(const RoadGraph& graph, const RoadPath& path, std::size_t step, Route& route) {
  const RoadArc arc = path.steps[step].arc;
  const std::size_t here = route.geometry.size() - 1;
  if (path.steps[step + 1].arc == reversed(arc)) {
    route.stops.push_back({here, kTurnRoundSeconds});
  } else if (graph.arrival(arc).hasSignal) {
    if (const auto seconds = signalSeconds(path, arc)) route.stops.push_back({here, *seconds});
  }
}

// What it takes to go on from one step to the next.
double turnSeconds(const RoadGraph& graph, const RoadPath::Step& step, const RoadPath::Step& next) {
  const bool isBack = next.arc == reversed(step.arc);
  const double whole = graph.metres(edgeOf(step.arc));
  if (isBack && step.end > 0 && step.end < whole) return kTurnRoundSeconds;
  const auto& arrival = graph.arrival(step.arc);
  for (const auto& departure : graph.departures(arrival.junction)) {
    if (departure.arc != next.arc) continue;
    return graph.turnSeconds(arrival, departure.heading) + (isBack ? kTurnRoundSeconds : 0);
  }
  return 0;
}

Route routeOf(const RoadGraph& graph, const RoadPath& path) {
  Route route;
  route.geometry.push_back(path.from.coordinate);
  for (std::size_t at = 0; at < path.steps.size(); ++at) {
    const RoadPath::Step& step = path.steps[at];
    const bool isLast = at + 1 == path.steps.size();
    if (at > 0) route.expectedSeconds += turnSeconds(graph, path.steps[at - 1], step);
    appendStep(graph, step, isLast ? path.to.coordinate : endOf(graph, step), route);
    if (!isLast) appendStop(graph, path, at, route);
    const double metres = std::abs(step.end - step.begin);
    const double whole = graph.metres(edgeOf(step.arc));
    route.distanceMetres += metres;
    if (whole > 0) route.expectedSeconds += metres / whole * graph.seconds(edgeOf(step.arc));
  }
  if (route.geometry.size() == 1) {
    route.geometry.push_back(route.geometry.front());
    route.limits.push_back(1);
  }
  route.polyline = route.geometry;
  return route;
}

// The share of a path's metres that lie on any of the edges.
double sharedPart(const RoadPath& path, const std::unordered_set<std::uint32_t>& edges) {
  double all = 0;
  double shared = 0;
  for (const RoadPath::Step& step : path.steps) {
    const double metres = std::abs(step.end - step.begin);
    all += metres;
    if (edges.contains(edgeOf(step.arc))) shared += metres;
  }
  return all > 0 ? shared / all : 1;
}

}  // namespace

Result<std::vector<Route>> routesOn(RouterSearch& search, Coordinate from, Coordinate to,
                                    int alternates, const std::optional<RoadTime>& time) {
  const RoadGraph& graph = search.graph();
  const auto first = quickest(search, from, to, time);
  if (!first) return first.failure();
  std::optional<RoadPath> path = *first;
  std::vector<Route> routes{routeOf(graph, *path)};
  std::unordered_set<std::uint32_t> used;
  const auto wanted = static_cast<std::size_t>(std::max(alternates, 0)) + 1;
  int tries = kTriesForAnAlternate * std::max(alternates, 0);
  const auto use = [&] {
    for (const auto& step : path->steps) used.insert(edgeOf(step.arc));
  };
  use();
  while (routes.size() < wanted && tries-- > 0) {
    search.discourage(*path);
    path = search.find();
    if (!path) break;
    Route route = routeOf(graph, *path);
    if (route.expectedSeconds > kSlowestAlternate * routes.front().expectedSeconds) continue;
    if (sharedPart(*path, used) > kMostShared) continue;
    routes.push_back(std::move(route));
    use();
  }
  return routes;
}

}  // namespace wayloom
