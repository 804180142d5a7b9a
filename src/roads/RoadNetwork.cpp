#include "roads/RoadNetwork.h"

#include <cmath>

namespace wayloom {

namespace {

constexpr double kUnitsPerDegree = 1e7;

}  // namespace

RoadPoint roadPoint(Coordinate coordinate) {
  return {static_cast<std::int32_t>(std::lround(coordinate.longitude * kUnitsPerDegree)),
          static_cast<std::int32_t>(std::lround(coordinate.latitude * kUnitsPerDegree))};
}

Coordinate coordinateOf(RoadPoint point) {
  return {point.latitude / kUnitsPerDegree, point.longitude / kUnitsPerDegree};
}

std::vector<RoadPoint> RoadNetwork::points(std::uint32_t edge) const {
  const RoadEdge& road = edges[edge];
  const std::size_t end = edge + 1 < edges.size() ? edges[edge + 1].firstBend : bends.size();
  std::vector<RoadPoint> points;
  points.reserve(end - road.firstBend + 2);
  points.push_back(junctions[road.from]);
  points.insert(points.end(), bends.begin() + road.firstBend,
                bends.begin() + static_cast<std::ptrdiff_t>(end));
  points.push_back(junctions[road.to]);
  return points;
}

}  // namespace wayloom
