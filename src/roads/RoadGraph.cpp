#include "roads/RoadGraph.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <numeric>
#include <set>
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
  std::vector<RoadArc> arcs;
  std::vector<std::uint32_t> sources;
  arcs.reserve(2 * edges().size());
  sources.reserve(2 * edges().size());
  for (std::uint32_t number = 0; number < edges().size(); ++number) {
    const RoadEdge& edge = edges()[number];
    const auto taken = static_cast<float>(seconds(number));
    const bool residents = edge.use.destinationOnly;
    if (edge.use.forward) {
      arcs.push_back({edge.to, number, taken, true, residents});
      sources.push_back(edge.from);
    }
    if (edge.use.backward) {
      arcs.push_back({edge.from, number, taken, false, residents});
      sources.push_back(edge.to);
    }
  }
  mJunctionOf.resize(junctionCount());
  std::iota(mJunctionOf.begin(), mJunctionOf.end(), 0U);
  if (!mNetwork.turns.empty()) addTurnNodes(arcs, sources);

  mArcs.first.assign(nodeCount() + 1, 0);
  for (const std::uint32_t source : sources) ++mArcs.first[source + 1];
  std::partial_sum(mArcs.first.begin(), mArcs.first.end(), mArcs.first.begin());
  mArcs.all.resize(arcs.size());
  std::vector<std::uint32_t> next(mArcs.first);
  for (std::size_t arc = 0; arc < arcs.size(); ++arc) mArcs.all[next[sources[arc]]++] = arcs[arc];
}

void RoadGraph::addTurnNodes(std::vector<RoadArc>& arcs, std::vector<std::uint32_t>& sources) {
  // By junction and the edge on which one comes.
  std::map<std::pair<std::uint32_t, std::uint32_t>, std::set<std::uint32_t>> forbidden;
  for (const ForbiddenTurn& turn : mNetwork.turns) {
    forbidden[{turn.junction, turn.fromEdge}].insert(turn.toEdge);
  }
  std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t> nodes;
  for (const auto& [coming, edges] : forbidden) {
    const auto node = static_cast<std::uint32_t>(nodeCount());
    nodes.emplace(coming, node);
    mJunctionOf.push_back(coming.first);
    mTurnNodes.push_back(node);
    mSpace.push_back(SpacePoint(mSpace[coming.first]));
  }
  std::map<std::uint32_t, std::vector<std::size_t>> leaving;
  for (const auto& [coming, edges] : forbidden) leaving[coming.first];
  for (std::size_t arc = 0; arc < arcs.size(); ++arc) {
    const auto found = leaving.find(sources[arc]);
    if (found != leaving.end()) found->second.push_back(arc);
    const auto node = nodes.find({arcs[arc].target, arcs[arc].edge});
    if (node != nodes.end()) arcs[arc].target = node->second;
  }
  for (const auto& [coming, edges] : forbidden) {
    for (const std::size_t arc : leaving[coming.first]) {
      if (edges.contains(arcs[arc].edge)) continue;
      arcs.push_back(RoadArc(arcs[arc]));
      sources.push_back(nodes[coming]);
    }
  }
}

std::span<const std::uint32_t> RoadGraph::turnNodes(std::uint32_t junction) const {
  const auto before = [this](std::uint32_t a, std::uint32_t b) {
    return mJunctionOf[a] < mJunctionOf[b];
  };
  // A junction is its own node, so it can be compared with the others.
  const auto [first, last] =
      std::equal_range(mTurnNodes.begin(), mTurnNodes.end(), junction, before);
  return {first, last};
}

const RoadArc* RoadGraph::arcOf(std::uint32_t edge, bool isForward) const {
  const RoadEdge& road = edges()[edge];
  for (const RoadArc& arc : arcs(isForward ? road.from : road.to)) {
    if (arc.edge == edge && arc.isForward == isForward) return &arc;
  }
  return nullptr;
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
      if ((!use.forward && !use.backward) || use.isFerry) continue;
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

RoadSpotPlace RoadGraph::placeOf(const RoadSpot& spot) const {
  RoadSpotPlace place;
  const auto enter = [&](std::uint32_t junction, std::optional<std::uint32_t> edge) {
    const auto addNode = [&](std::uint32_t node) {
      const auto leaving = arcs(node);
      const bool isOpen = !edge || std::any_of(leaving.begin(), leaving.end(),
                                               [&](const auto& arc) { return arc.edge == *edge; });
      if (isOpen) place.entries.push_back(mComponents.of(node));
    };
    addNode(junction);
    for (const std::uint32_t node : turnNodes(junction)) addNode(node);
  };
  if (const auto junction = junctionAt(spot)) {
    place.exits.push_back(mComponents.of(*junction));
    enter(*junction, std::nullopt);
  } else {
    for (const bool isForward : {true, false}) {
      const RoadArc* arc = arcOf(spot.edge, isForward);
      if (!arc) continue;
      place.exits.push_back(mComponents.of(arc->target));
      enter(isForward ? edges()[spot.edge].from : edges()[spot.edge].to, spot.edge);
    }
  }
  for (auto* components : {&place.exits, &place.entries}) {
    std::sort(components->begin(), components->end());
    components->erase(std::unique(components->begin(), components->end()), components->end());
  }
  return place;
}

bool RoadGraph::leads(const RoadSpot& from, const RoadSpot& to) const {
  if (from.edge == to.edge) {
    const RoadUse& use = edges()[from.edge].use;
    if (use.forward && from.alongMetres <= to.alongMetres) return true;
    if (use.backward && from.alongMetres >= to.alongMetres) return true;
  }
  const RoadSpotPlace start = placeOf(from);
  const RoadSpotPlace end = placeOf(to);
  return std::any_of(start.exits.begin(), start.exits.end(), [&](std::uint32_t exit) {
    return std::any_of(end.entries.begin(), end.entries.end(),
                       [&](std::uint32_t entry) { return mComponents.leads(exit, entry); });
  });
}

}  // namespace wayloom
