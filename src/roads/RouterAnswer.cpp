#include "roads/RouterAnswer.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>

#include "roads/RouterSearch.h"

namespace wayloom {

namespace {

constexpr double kSlowestAlternate = 1.5;
constexpr double kMostShared = 0.7;
constexpr int kTriesForAnAlternate = 3;
// More parts of a network than this do not meet in one place.
constexpr std::size_t kMostUnlikeSpots = 16;

using Spots = std::vector<RoadSpot>;
using SpotPair = std::pair<RoadSpot, RoadSpot>;

// Of spots that lead to the same places only the nearest is worth asking about.
Spots unlike(const RoadGraph& graph, Spots spots) {
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

std::optional<SpotPair> nearestJoined(const RoadGraph& graph, const Spots& starts,
                                      const Spots& ends) {
  std::optional<SpotPair> best;
  double bestMetres = std::numeric_limits<double>::infinity();
  for (const RoadSpot& start : starts) {
    for (const RoadSpot& end : ends) {
      const double metres = start.awayMetres + end.awayMetres;
      if (metres >= bestMetres || !graph.leads(start, end)) continue;
      best.emplace(start, end);
      bestMetres = metres;
    }
  }
  return best;
}

// Most places have a road at hand; looking wider costs much more.
Spots spotsNear(const RoadGraph& graph, Coordinate position) {
  for (const double radius : {60.0, 250.0}) {
    Spots spots = graph.spotsAround(position, radius);
    if (!spots.empty()) return unlike(graph, std::move(spots));
  }
  return unlike(graph, graph.spotsAround(position, kFarthestRoadMetres));
}

Result<SpotPair> endsOf(const RoadGraph& graph, Coordinate from, Coordinate to) {
  const std::string metres = std::to_string(static_cast<int>(kFarthestRoadMetres));
  const Spots starts = spotsNear(graph, from);
  if (starts.empty()) return Failure{"there is no road within " + metres + " m of the start"};
  const Spots ends = spotsNear(graph, to);
  if (ends.empty()) return Failure{"there is no road within " + metres + " m of the end"};
  if (const auto pair = nearestJoined(graph, starts, ends)) return *pair;
  const auto allNear = [&](Coordinate position) {
    return unlike(graph, graph.spotsAround(position, kFarthestRoadMetres));
  };
  if (const auto pair = nearestJoined(graph, allNear(from), allNear(to))) return *pair;
  return Failure{"no road leads from the start to the end"};
}

void append(Line& line, Coordinate position) {
  if (line.empty() || line.back() != position) line.push_back(position);
}

// The positions of an edge between two spots on it, in the direction of driving.
void appendStep(const RoadGraph& graph, const RoadPath& path, std::size_t step, Line& line) {
  const auto [edge, isForward] = path.steps[step];
  const bool isLast = step + 1 == path.steps.size();
  const Line positions = graph.line(edge);
  std::size_t first = 0;
  std::size_t end = positions.size();
  // What lies before the start and behind the end is not driven.
  if (step == 0 && path.startsWithinEdge) (isForward ? first : end) = path.from.passed;
  if (isLast && path.endsWithinEdge) (isForward ? end : first) = path.to.passed;
  if (isForward) {
    for (std::size_t index = first; index < end; ++index) append(line, positions[index]);
  } else {
    for (std::size_t index = end; index > first; --index) append(line, positions[index - 1]);
  }
}

double drivenMetres(const RoadGraph& graph, const RoadPath& path, std::size_t step) {
  const auto [edge, isForward] = path.steps[step];
  const bool isLast = step + 1 == path.steps.size();
  double begin = isForward ? 0 : graph.metres(edge);
  double end = graph.metres(edge) - begin;
  if (step == 0 && path.startsWithinEdge) begin = path.from.alongMetres;
  if (isLast && path.endsWithinEdge) end = path.to.alongMetres;
  return std::abs(end - begin);
}

Route routeOf(const RoadGraph& graph, const RoadPath& path) {
  Route route;
  append(route.polyline, path.from.coordinate);
  for (std::size_t step = 0; step < path.steps.size(); ++step) {
    appendStep(graph, path, step, route.polyline);
    const std::uint32_t edge = path.steps[step].edge;
    const double metres = drivenMetres(graph, path, step);
    route.distanceMetres += metres;
    if (metres > 0) route.expectedSeconds += metres / graph.metres(edge) * graph.seconds(edge);
  }
  append(route.polyline, path.to.coordinate);
  if (route.polyline.size() == 1) route.polyline.push_back(route.polyline.front());
  return route;
}

// The share of a path's metres that lie on any of the edges.
double sharedPart(const RoadGraph& graph, const RoadPath& path,
                  const std::unordered_set<std::uint32_t>& edges) {
  double all = 0;
  double shared = 0;
  for (std::size_t step = 0; step < path.steps.size(); ++step) {
    const double metres = drivenMetres(graph, path, step);
    all += metres;
    if (edges.contains(path.steps[step].edge)) shared += metres;
  }
  return all > 0 ? shared / all : 1;
}

}  // namespace

Result<std::vector<Route>> routesOn(const RoadGraph& graph, Coordinate from, Coordinate to,
                                    int alternates) {
  const auto ends = endsOf(graph, from, to);
  if (!ends) return ends.failure();
  RouterSearch search(graph, ends->first, ends->second);
  auto path = search.find();
  if (!path) return Failure{"no road leads from the start to the end"};
  std::vector<Route> routes{routeOf(graph, *path)};
  std::unordered_set<std::uint32_t> used;
  const auto wanted = static_cast<std::size_t>(std::max(alternates, 0)) + 1;
  int tries = kTriesForAnAlternate * std::max(alternates, 0);
  const auto use = [&] {
    for (const auto& step : path->steps) used.insert(step.edge);
  };
  use();
  while (routes.size() < wanted && tries-- > 0) {
    search.discourage(*path);
    path = search.find();
    if (!path) break;
    Route route = routeOf(graph, *path);
    if (route.expectedSeconds > kSlowestAlternate * routes.front().expectedSeconds) continue;
    if (sharedPart(graph, *path, used) > kMostShared) continue;
    routes.push_back(std::move(route));
    use();
  }
  return routes;
}

}  // namespace wayloom
