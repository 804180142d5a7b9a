#include "roads/RoadGraphBuilder.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <unordered_map>

namespace wayloom {

namespace {

struct PointHash {
  std::size_t operator()(RoadPoint point) const {
    const auto key = static_cast<std::uint64_t>(static_cast<std::uint32_t>(point.longitude)) << 32 |
                     static_cast<std::uint32_t>(point.latitude);
    return std::hash<std::uint64_t>()(key * 0x9E3779B97F4A7C15U);
  }
};

// More than meet anywhere. Where thousands did, the turns from each to each would take gigabytes.
constexpr std::size_t kMostRoadsAtATurn = 64;

using Points = std::vector<RoadPoint>;
using Numbers = std::unordered_map<RoadPoint, std::uint32_t, PointHash>;

/// A part of a way from one junction to the next.
struct Stretch {
  Points points;
  RoadUse use;
  std::size_t way = 0;
};

Points pointsOf(const RoadWay& way) {
  Points points;
  for (const Coordinate& position : way.line) {
    const RoadPoint point = roadPoint(position);
    if (points.empty() || point != points.back()) points.push_back(point);
  }
  return points;
}

std::vector<Stretch> stretches(const std::vector<RoadWay>& ways,
                               const std::set<RoadPoint>& barriers) {
  std::vector<Points> lines;
  Numbers uses;
  for (const RoadWay& way : ways) {
    const Points& points = lines.emplace_back(pointsOf(way));
    for (const RoadPoint& point : points) ++uses[point];
  }
  for (const RoadPoint& barrier : barriers) uses[barrier] += 2;
  std::vector<Stretch> result;
  for (std::size_t way = 0; way < ways.size(); ++way) {
    const Points& points = lines[way];
    std::size_t begin = 0;
    for (std::size_t index = 1; index < points.size(); ++index) {
      if (index + 1 < points.size() && uses[points[index]] < 2) continue;
      result.push_back({{points.begin() + static_cast<std::ptrdiff_t>(begin),
                         points.begin() + static_cast<std::ptrdiff_t>(index) + 1},
                        ways[way].use,
                        way});
      begin = index;
    }
  }
  return result;
}

std::uint64_t spread(std::uint32_t value) {
  std::uint64_t bits = value;
  bits = (bits | bits << 16) & 0x0000FFFF0000FFFFU;
  bits = (bits | bits << 8) & 0x00FF00FF00FF00FFU;
  bits = (bits | bits << 4) & 0x0F0F0F0F0F0F0F0FU;
  bits = (bits | bits << 2) & 0x3333333333333333U;
  return (bits | bits << 1) & 0x5555555555555555U;
}

// A number that is close for points that are close: the bits of both coordinates in turn.
std::uint64_t placeInOrder(RoadPoint point) {
  constexpr std::uint32_t kSignBit = 1U << 31;
  return spread(static_cast<std::uint32_t>(point.longitude) ^ kSignBit) << 1 |
         spread(static_cast<std::uint32_t>(point.latitude) ^ kSignBit);
}

// The network in the making, and which way each edge is of.
class Network {
 public:
  explicit Network(const std::set<RoadPoint>& barriers) : mBarriers(barriers) {}

  void add(const Stretch& part) {
    const std::uint32_t from = junction(part.points.front());
    const std::uint32_t to = junction(part.points.back());
    mNetwork.edges.push_back(
        {from, to, static_cast<std::uint32_t>(mNetwork.bends.size()), part.use});
    mNetwork.bends.insert(mNetwork.bends.end(), part.points.begin() + 1, part.points.end() - 1);
    mWays.push_back(part.way);
  }

  void forbid(const std::vector<RoadRules::Turn>& turns) {
    for (std::uint32_t edge = 0; edge < mWays.size(); ++edge) {
      mEdgesAt[mNetwork.edges[edge].from].push_back(edge);
      if (mNetwork.edges[edge].to != mNetwork.edges[edge].from) {
        mEdgesAt[mNetwork.edges[edge].to].push_back(edge);
      }
    }
    for (const RoadRules::Turn& turn : turns) forbid(turn);
    std::sort(mNetwork.turns.begin(), mNetwork.turns.end());
    mNetwork.turns.erase(std::unique(mNetwork.turns.begin(), mNetwork.turns.end()),
                         mNetwork.turns.end());
  }

  RoadNetwork take() { return std::move(mNetwork); }

 private:
  // Nothing leads from one side of a barrier to the other: each road ends there by itself.
  std::uint32_t junction(RoadPoint point) {
    const auto next = static_cast<std::uint32_t>(mNetwork.junctions.size());
    if (mBarriers.contains(point)) {
      mNetwork.junctions.push_back(point);
      return next;
    }
    const auto [found, isNew] = mJunctions.emplace(point, next);
    if (isNew) mNetwork.junctions.push_back(point);
    return found->second;
  }

  std::vector<std::uint32_t> edgesOf(std::size_t way, std::uint32_t at) {
    std::vector<std::uint32_t> edges;
    for (const std::uint32_t edge : mEdgesAt[at]) {
      if (mWays[edge] == way) edges.push_back(edge);
    }
    return edges;
  }

  void forbid(const RoadRules::Turn& turn) {
    const auto via = mJunctions.find(roadPoint(turn.via));
    if (via == mJunctions.end() || mEdgesAt[via->second].size() > kMostRoadsAtATurn) return;
    const auto from = edgesOf(turn.fromWay, via->second);
    const auto to = edgesOf(turn.toWay, via->second);
    if (from.size() != 1 || to.size() != 1) return;
    if (!turn.isOnly) {
      mNetwork.turns.push_back({from.front(), via->second, to.front()});
      return;
    }
    for (const std::uint32_t edge : mEdgesAt[via->second]) {
      if (edge != to.front()) mNetwork.turns.push_back({from.front(), via->second, edge});
    }
  }

  const std::set<RoadPoint>& mBarriers;
  RoadNetwork mNetwork;
  Numbers mJunctions;
  std::vector<std::size_t> mWays;
  std::unordered_map<std::uint32_t, std::vector<std::uint32_t>> mEdgesAt;
};

}  // namespace

RoadNetwork roadNetwork(const std::vector<RoadWay>& ways, const RoadRules& rules) {
  std::set<RoadPoint> barriers;
  for (const Coordinate& barrier : rules.barriers) barriers.insert(roadPoint(barrier));
  std::vector<Stretch> parts = stretches(ways, barriers);
  // Neighbours in the file are neighbours on the ground: the index of the edges relies on it, and
  // a search then reads little memory.
  std::stable_sort(parts.begin(), parts.end(), [](const Stretch& a, const Stretch& b) {
    return placeInOrder(a.points[a.points.size() / 2]) <
           placeInOrder(b.points[b.points.size() / 2]);
  });
  Network network(barriers);
  for (const Stretch& part : parts) network.add(part);
  if (!rules.turns.empty()) network.forbid(rules.turns);
  return network.take();
}

}  // namespace wayloom
