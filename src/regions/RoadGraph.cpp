#include "regions/RoadGraph.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace wayloom {

namespace {

constexpr double kRadians = std::numbers::pi / 180;
constexpr double kEarthRadiusMetres = 6371008.8;
// Finer than the positions of roads are known.
constexpr double kSameSpotMetres = 0.05;

double metresPerSecond(const RoadUse& use) {
  return use.kmPerHour / 3.6;
}

// Metres along the line up to its position of this number.
double metresTo(const Line& line, std::size_t position) {
  double metres = 0;
  for (std::size_t index = 1; index <= position; ++index) {
    metres += distanceMetres(line[index - 1], line[index]);
  }
  return metres;
}

}  // namespace

SpacePoint spaceOf(Coordinate coordinate) {
  const double latitude = coordinate.latitude * kRadians;
  const double longitude = coordinate.longitude * kRadians;
  const double radius = kEarthRadiusMetres * std::cos(latitude);
  return {radius * std::cos(longitude), radius * std::sin(longitude),
          kEarthRadiusMetres * std::sin(latitude)};
}

double chordMetres(const SpacePoint& a, const SpacePoint& b) {
  const double x = a[0] - b[0];
  const double y = a[1] - b[1];
  const double z = a[2] - b[2];
  return std::sqrt(x * x + y * y + z * z);
}

RoadGraph::RoadGraph(RoadNetwork network) : mNetwork(std::move(network)) {
  measure();
  findArcs();
  mComponents = RoadGraphComponents(mArcs);
}

void RoadGraph::measure() {
  mSpace.reserve(junctionCount());
  for (const RoadPoint& junction : mNetwork.junctions) {
    mSpace.push_back(spaceOf(coordinateOf(junction)));
  }
  std::vector<RegionBounds> boxes;
  boxes.reserve(edges().size());
  mMetres.reserve(edges().size());
  for (std::uint32_t edge = 0; edge < edges().size(); ++edge) {
    const Line positions = line(edge);
    mMetres.push_back(metresTo(positions, positions.size() - 1));
    boxes.push_back(boundsOf(positions));
    mFastest = std::max(mFastest, metresPerSecond(edges()[edge].use));
  }
  mTree = RoadGraphTree(std::move(boxes));
}

void RoadGraph::findArcs() {
  mArcs.first.assign(junctionCount() + 1, 0);
  for (const RoadEdge& edge : edges()) {
    if (edge.use.forward) ++mArcs.first[edge.from + 1];
    if (edge.use.backward) ++mArcs.first[edge.to + 1];
  }
  for (std::size_t junction = 0; junction < junctionCount(); ++junction) {
    mArcs.first[junction + 1] += mArcs.first[junction];
  }
  mArcs.all.resize(mArcs.first.back());
  std::vector<std::uint32_t> next(mArcs.first);
  for (std::uint32_t number = 0; number < edges().size(); ++number) {
    const RoadEdge& edge = edges()[number];
    const auto taken = static_cast<float>(seconds(number));
    const bool residents = edge.use.destinationOnly;
    if (edge.use.forward) mArcs.all[next[edge.from]++] = {edge.to, number, taken, true, residents};
    if (edge.use.backward)
      mArcs.all[next[edge.to]++] = {edge.from, number, taken, false, residents};
  }
}

Line RoadGraph::line(std::uint32_t edge) const {
  const RoadEdge& road = edges()[edge];
  const std::size_t end =
      edge + 1 < edges().size() ? edges()[edge + 1].firstBend : mNetwork.bends.size();
  Line line;
  line.reserve(end - road.firstBend + 2);
  line.push_back(coordinateOf(mNetwork.junctions[road.from]));
  for (std::size_t bend = road.firstBend; bend < end; ++bend) {
    line.push_back(coordinateOf(mNetwork.bends[bend]));
  }
  line.push_back(coordinateOf(mNetwork.junctions[road.to]));
  return line;
}

double RoadGraph::seconds(std::uint32_t edge) const {
  return mMetres[edge] / metresPerSecond(edges()[edge].use);
}

std::optional<RoadSpot> RoadGraph::spotOn(std::uint32_t edge, Coordinate position,
                                          double radiusMetres) const {
  const Line positions = line(edge);
  const NearestSpot nearest = nearestSpot(position, positions);
  if (nearest.metres > radiusMetres) return std::nullopt;
  RoadSpot spot{edge, nearest.coordinate, nearest.position + 1, 0, nearest.metres};
  for (std::size_t next = nearest.position; next < positions.size(); ++next) {
    if (next > nearest.position + 1) break;
    if (distanceMetres(positions[next], nearest.coordinate) > kSameSpotMetres) continue;
    spot.coordinate = positions[next];
    spot.passed = next + 1;
    break;
  }
  spot.alongMetres = metresTo(positions, spot.passed - 1) +
                     distanceMetres(positions[spot.passed - 1], spot.coordinate);
  spot.alongMetres = std::min(spot.alongMetres, mMetres[edge]);
  return spot;
}

std::vector<RoadSpot> RoadGraph::spotsAround(Coordinate position, double radiusMetres) const {
  std::vector<RoadSpot> spots;
  for (const RegionBounds& bounds : boundsAround(position, radiusMetres)) {
    for (const std::uint32_t edge : mTree.edgesIn(bounds)) {
      const RoadUse& use = edges()[edge].use;
      if (!use.forward && !use.backward) continue;
      if (const auto spot = spotOn(edge, position, radiusMetres)) spots.push_back(*spot);
    }
  }
  std::stable_sort(spots.begin(), spots.end(), [](const RoadSpot& a, const RoadSpot& b) {
    return a.awayMetres < b.awayMetres;
  });
  return spots;
}

std::optional<std::uint32_t> RoadGraph::junctionAt(const RoadSpot& spot) const {
  if (spot.alongMetres <= 0) return edges()[spot.edge].from;
  if (spot.alongMetres >= mMetres[spot.edge]) return edges()[spot.edge].to;
  return std::nullopt;
}

std::uint32_t RoadGraph::exitComponent(const RoadSpot& spot) const {
  const RoadEdge& road = edges()[spot.edge];
  return mComponents.of(junctionAt(spot).value_or(road.use.forward ? road.to : road.from));
}

std::uint32_t RoadGraph::entryComponent(const RoadSpot& spot) const {
  const RoadEdge& road = edges()[spot.edge];
  return mComponents.of(junctionAt(spot).value_or(road.use.forward ? road.from : road.to));
}

bool RoadGraph::leads(const RoadSpot& from, const RoadSpot& to) const {
  if (from.edge == to.edge) {
    const RoadUse& use = edges()[from.edge].use;
    if (use.forward && from.alongMetres <= to.alongMetres) return true;
    if (use.backward && from.alongMetres >= to.alongMetres) return true;
  }
  return mComponents.leads(exitComponent(from), entryComponent(to));
}

bool RoadGraph::areAlike(const RoadSpot& a, const RoadSpot& b) const {
  const std::uint32_t entry = entryComponent(a);
  const std::uint32_t exit = exitComponent(a);
  return entry == entryComponent(b) && exit == exitComponent(b) &&
         (entry == exit || a.edge == b.edge);
}

}  // namespace wayloom
