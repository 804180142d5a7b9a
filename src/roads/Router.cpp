#include "roads/Router.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "regions/GroundGeometry.h"
#include "roads/RouterAnswer.h"

namespace wayloom {

namespace {

// Whether a road of the region may be near enough to the position.
bool isWithinReach(const RegionBounds& region, Coordinate position) {
  const auto around = boundsAround(position, kFarthestRoadMetres);
  return std::any_of(around.begin(), around.end(), [&](const RegionBounds& bounds) {
    return bounds.west <= region.east && region.west <= bounds.east &&
           bounds.south <= region.north && region.south <= bounds.north;
  });
}

double size(const RegionBounds& bounds) {
  return (bounds.east - bounds.west) * (bounds.north - bounds.south);
}

/// The routes that begin and end nearest to where they were asked for. Where regions overlap, each
/// may know roads that the other does not have.
struct Nearest {
  std::vector<Route> routes;
  double metres = std::numeric_limits<double>::infinity();

  void offer(std::vector<Route> offered, Coordinate from, Coordinate to) {
    // Less tells nothing about which region knows better; the smaller one came first.
    constexpr double kLeastGainMetres = 1;
    const std::vector<Coordinate>& line = offered.front().polyline;
    const double away = distanceMetres(from, line.front()) + distanceMetres(to, line.back());
    if (away + kLeastGainMetres > metres) return;
    routes = std::move(offered);
    metres = away;
  }
};

Result<std::optional<RoadGraph>> readGraph(const std::filesystem::path& path) {
  auto database = openRegion(path);
  if (!database) return database.failure();
  auto network = readRoads(*database);
  if (!network) return network.failure();
  if (network->edges.empty()) return std::optional<RoadGraph>();
  return std::optional<RoadGraph>(std::in_place, std::move(*network));
}

}  // namespace

Router::Router(const RegionStore& store) {
  for (const Region& region : store.regions()) mRegions.push_back({region, false, {}, {}});
  // The smallest knows its roads best.
  std::stable_sort(mRegions.begin(), mRegions.end(), [](const auto& a, const auto& b) {
    return size(a.region.info.bounds) < size(b.region.info.bounds);
  });
}

void Router::read(RegionRoads& roads) {
  if (std::exchange(roads.isRead, true)) return;
  auto graph = readGraph(roads.region.path);
  if (graph) {
    roads.graph = std::move(*graph);
  } else {
    roads.fault = "the region " + roads.region.info.name + " cannot be used: " + graph.message();
  }
}

Result<std::vector<Route>> Router::plan(Coordinate from, Coordinate to, int alternates) {
  if (!isOnGlobe(from)) return Failure{"the start is not on the globe"};
  if (!isOnGlobe(to)) return Failure{"the end is not on the globe"};
  std::string fault;
  Nearest best;
  bool hasStart = false;
  bool hasEnd = false;
  for (RegionRoads& roads : mRegions) {
    const bool reachesStart = isWithinReach(roads.region.info.bounds, from);
    const bool reachesEnd = isWithinReach(roads.region.info.bounds, to);
    if (!reachesStart && !reachesEnd) continue;
    read(roads);
    if (fault.empty()) fault = roads.fault;
    if (!roads.graph) continue;
    hasStart = hasStart || reachesStart;
    hasEnd = hasEnd || reachesEnd;
    if (!reachesStart || !reachesEnd) continue;
    auto routes = routesOn(*roads.graph, from, to, alternates);
    if (routes) {
      best.offer(std::move(*routes), from, to);
    } else if (fault.empty()) {
      fault = routes.message();
    }
  }
  if (!best.routes.empty()) return std::move(best.routes);
  if (!fault.empty()) return Failure{fault};
  if (!hasStart) return Failure{"the start lies outside every installed region with roads"};
  if (!hasEnd) return Failure{"the end lies outside every installed region with roads"};
  return Failure{"start and end lie in different regions, whose roads are not joined"};
}

}  // namespace wayloom
