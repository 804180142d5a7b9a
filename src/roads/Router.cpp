#include "roads/Router.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "regions/GroundGeometry.h"
#include "roads/RoadGraphFile.h"
#include "roads/RoadJoin.h"
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

// Less tells nothing about which region knows better; the smaller one comes first.
constexpr double kLeastGainMetres = 1;

double size(const RegionBounds& bounds) {
  return (bounds.east - bounds.west) * (bounds.north - bounds.south);
}

Result<RoadNetwork> readNetwork(const std::filesystem::path& path) {
  auto database = openRegion(path);
  if (!database) return database.failure();
  return readRoads(*database);
}

}  // namespace

/// What is asked, and the best answer so far: the routes that begin and end nearest to where they
/// were asked for. Where regions overlap, each may know roads that the other does not have.
struct Router::Question {
  Coordinate from;
  Coordinate to;
  int alternates = 0;
  std::optional<RoadTime> start;

  std::vector<Route> routes;
  double metres = std::numeric_limits<double>::infinity();
  std::string fault;
  bool hasStart = false;
  bool hasEnd = false;

  void ask(Roads& roads, const std::vector<std::string>& regions) {
    auto found = routesOn(roads.search, from, to, alternates, start);
    if (!found) {
      if (fault.empty()) fault = found.message();
      return;
    }
    const std::vector<Coordinate>& line = found->front().polyline;
    const double away = distanceMetres(from, line.front()) + distanceMetres(to, line.back());
    if (away + kLeastGainMetres > metres) return;
    routes = std::move(*found);
    metres = away;
    for (Route& route : routes) route.regions = regions;
  }
};

Router::Router(const RegionStore& store) {
  for (const Region& region : store.regions()) mRegions.push_back({region, false, {}, {}});
  // The smallest knows its roads best.
  std::stable_sort(mRegions.begin(), mRegions.end(), [](const auto& a, const auto& b) {
    return size(a.region.info.bounds) < size(b.region.info.bounds);
  });
}

Router::~Router() = default;

void Router::read(RegionRoads& roads) {
  if (std::exchange(roads.isRead, true)) return;
  auto network = readNetwork(roads.region.path);
  if (!network) {
    roads.fault = "the region " + roads.region.info.name + " cannot be used: " + network.message();
  } else if (!network->edges.empty()) {
    roads.roads = std::make_unique<Roads>(std::move(*network));
  }
}

void Router::askEach(Question& question) {
  for (RegionRoads& roads : mRegions) {
    const bool reachesStart = isWithinReach(roads.region.info.bounds, question.from);
    const bool reachesEnd = isWithinReach(roads.region.info.bounds, question.to);
    if (!reachesStart && !reachesEnd) continue;
    read(roads);
    if (question.fault.empty()) question.fault = roads.fault;
    if (!roads.roads) continue;
    question.hasStart = question.hasStart || reachesStart;
    question.hasEnd = question.hasEnd || reachesEnd;
    if (reachesStart && reachesEnd) question.ask(*roads.roads, {roads.region.info.name});
  }
}

void Router::askPairs(Question& question) {
  for (std::size_t a = 0; a < mRegions.size(); ++a) {
    for (std::size_t b = a + 1; b < mRegions.size(); ++b) {
      const RegionRoads* first = &mRegions[a];
      const RegionRoads* second = &mRegions[b];
      if (!first->roads || !second->roads) continue;
      if (metresToRoad(*second, question.from) < metresToRoad(*first, question.from)) {
        std::swap(first, second);
      }
      const double metres =
          metresToRoad(*first, question.from) + metresToRoad(*second, question.to);
      if (std::isinf(metres) || metres + kLeastGainMetres > question.metres) continue;
      Roads* const roads = joined(a, b);
      if (roads) question.ask(*roads, {first->region.info.name, second->region.info.name});
    }
  }
}

// Infinite where none is near enough.
double Router::metresToRoad(const RegionRoads& region, Coordinate position) {
  if (isWithinReach(region.region.info.bounds, position)) {
    for (const double radius : {kFarthestRoadMetres / 10, kFarthestRoadMetres}) {
      const auto spots = region.roads->graph.spotsAround(position, radius);
      if (!spots.empty()) return spots.front().awayMetres;
    }
  }
  return std::numeric_limits<double>::infinity();
}

Router::Roads* Router::joined(std::size_t a, std::size_t b) {
  const auto [found, isFresh] = mJoined.try_emplace({a, b});
  if (isFresh) {
    auto network =
        joinedRoads(mRegions[a].roads->graph.network(), mRegions[b].roads->graph.network());
    if (network) found->second = std::make_unique<Roads>(std::move(*network));
  }
  return found->second.get();
}

Result<std::vector<Route>> Router::plan(Coordinate from, Coordinate to, int alternates,
                                        const std::optional<RoadTime>& start) {
  if (!isOnGlobe(from)) return Failure{"the start is not on the globe"};
  if (!isOnGlobe(to)) return Failure{"the end is not on the globe"};
  Question question;
  question.from = from;
  question.to = to;
  question.alternates = alternates;
  question.start = start;
  askEach(question);
  askPairs(question);
  if (!question.routes.empty()) return std::move(question.routes);
  if (!question.fault.empty()) return Failure{question.fault};
  if (!question.hasStart) {
    return Failure{"the start lies outside every installed region with roads"};
  }
  if (!question.hasEnd) return Failure{"the end lies outside every installed region with roads"};
  return Failure{"start and end lie in different regions, whose roads are not joined"};
}

}  // namespace wayloom
