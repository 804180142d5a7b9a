#include "roads/RoadGraphBuilder.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <optional>
#include <unordered_map>

namespace wayloom {

namespace {

using Node = std::int64_t;

/// A part of a way from one junction to the next.
struct Stretch {
  std::vector<RoadPoint> points;
  Node from = 0;
  Node to = 0;
  std::size_t way = 0;
};

std::uint64_t packed(RoadPoint point) {
  return static_cast<std::uint64_t>(static_cast<std::uint32_t>(point.longitude)) << 32 |
         static_cast<std::uint32_t>(point.latitude);
}

struct NodeHash {
  std::size_t operator()(Node node) const {
    return static_cast<std::size_t>(static_cast<std::uint64_t>(node) * 0x9E3779B97F4A7C15U >> 16);
  }
};
template <typename Value>
using ByNode = std::unordered_map<Node, Value, NodeHash>;

/// A way node by node, none twice in a row.
struct Course {
  explicit Course(const RoadWay& way) {
    for (std::size_t at = 0; at < way.line.size(); ++at) {
      const Node node = way.nodes.empty() ? roadNodeAt(way.line[at]) : way.nodes[at];
      if (!nodes.empty() && nodes.back() == node) continue;
      nodes.push_back(node);
      points.push_back(roadPoint(way.line[at]));
    }
  }

  Stretch part(std::size_t begin, std::size_t end, std::size_t way) const {
    return {{points.begin() + static_cast<std::ptrdiff_t>(begin),
             points.begin() + static_cast<std::ptrdiff_t>(end) + 1},
            nodes[begin],
            nodes[end],
            way};
  }

  std::vector<Node> nodes;
  std::vector<RoadPoint> points;
};

std::vector<Stretch> stretches(const std::vector<RoadWay>& ways, const RoadRules& rules) {
  std::vector<Course> courses;
  courses.reserve(ways.size());
  ByNode<std::uint32_t> uses;
  for (const RoadWay& way : ways) {
    for (const Node node : courses.emplace_back(way).nodes) ++uses[node];
  }
  for (const Node node : rules.barriers) uses[node] += 2;
  for (const auto& [node, signal] : rules.signals) uses[node] += 2;
  std::vector<Stretch> result;
  for (std::size_t way = 0; way < ways.size(); ++way) {
    const Course& course = courses[way];
    std::size_t begin = 0;
    for (std::size_t at = 1; at < course.nodes.size(); ++at) {
      if (at + 1 < course.nodes.size() && uses[course.nodes[at]] < 2) continue;
      result.push_back(course.part(begin, at, way));
      begin = at;
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
  Network(const std::vector<RoadWay>& ways, const RoadRules& rules) : mWays(ways), mRules(rules) {}

  void add(const Stretch& part) {
    const RoadWay& way = mWays[part.way];
    RoadEdge edge;
    edge.from = junction(part.from, part.points.front(), way);
    edge.to = junction(part.to, part.points.back(), way);
    edge.firstBend = static_cast<std::uint32_t>(mNetwork.bends.size());
    edge.use = way.use;
    const auto atEnd = mRules.signals.find(part.to);
    edge.signalAtEnd = atEnd != mRules.signals.end() && atEnd->second.forward;
    const auto atBegin = mRules.signals.find(part.from);
    edge.signalAtBegin = atBegin != mRules.signals.end() && atBegin->second.backward;
    mNetwork.edges.push_back(edge);
    mNetwork.bends.insert(mNetwork.bends.end(), part.points.begin() + 1, part.points.end() - 1);
  }

  /// `edges` are numbers of edges in the order of the ways.
  void restrict(const std::vector<std::pair<std::size_t, std::uint32_t>>& edges) {
    RestrictionFitter::WayEdges wayEdges;
    for (const RoadRestriction& each : mRules.restrictions) {
      for (const auto* numbers : {&each.from, &each.viaWays, &each.to}) {
        for (const std::int64_t number : *numbers) wayEdges[number];
      }
    }
    for (const auto& [way, edge] : edges) {
      const auto found = wayEdges.find(mWays[way].number);
      if (found != wayEdges.end()) found->second.push_back(edge);
    }
    std::erase_if(wayEdges, [](const auto& each) { return each.second.empty(); });
    const RestrictionFitter fitter(mNetwork, wayEdges);
    for (const RoadRestriction& each : mRules.restrictions) restrict(fitter, each);
    auto& rules = mNetwork.rules;
    std::sort(rules.begin(), rules.end());
    rules.erase(std::unique(rules.begin(), rules.end()), rules.end());
  }

  RoadNetwork take() { return std::move(mNetwork); }
  const RoadFaults& faults() const { return mFaults; }

 private:
  // Nobody passes a barrier, so each road that reaches it ends at a junction of its own.
  std::uint32_t junction(Node node, RoadPoint point, const RoadWay& way) {
    const bool isBarrier = mRules.barriers.contains(node);
    const auto fresh = static_cast<std::uint32_t>(mNetwork.junctions.size());
    std::uint32_t number = isBarrier ? fresh : mJunctions.emplace(node, fresh).first->second;
    const bool isFull = number != fresh && mRoadsAt[number] >= kMostRoadsAtAJunction;
    mFaults.unjoinedRoads += isFull ? 1 : 0;
    if (isFull) number = fresh;
    if (number == fresh) {
      mNetwork.junctions.push_back(point);
      mNetwork.numbers.push_back(isBarrier || isFull || way.nodes.empty() ? 0 : node);
      mRoadsAt.push_back(0);
    }
    ++mRoadsAt[number];
    return number;
  }

  void restrict(const RestrictionFitter& fitter, const RoadRestriction& restriction) {
    std::optional<std::uint32_t> via;
    if (restriction.viaNode) {
      const auto found = mJunctions.find(*restriction.viaNode);
      // No road that cars use leads there.
      if (found == mJunctions.end()) return;
      via = found->second;
    }
    if (!fitter.fit(restriction, via, mNetwork.rules)) ++mFaults.unfitRestrictions;
  }

  const std::vector<RoadWay>& mWays;
  const RoadRules& mRules;
  RoadNetwork mNetwork;
  ByNode<std::uint32_t> mJunctions;
  std::vector<std::uint8_t> mRoadsAt;
  RoadFaults mFaults;
};

}  // namespace

std::int64_t roadNodeAt(Coordinate position) {
  return static_cast<std::int64_t>(packed(roadPoint(position)));
}

RoadNetwork roadNetwork(const std::vector<RoadWay>& ways, const RoadRules& rules,
                        RoadFaults* faults) {
  const std::vector<Stretch> parts = stretches(ways, rules);
  // Neighbours in the file are neighbours on the ground: the index of the edges relies on it, and
  // a search then reads little memory.
  std::vector<std::size_t> order(parts.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return placeInOrder(parts[a].points[parts[a].points.size() / 2]) <
           placeInOrder(parts[b].points[parts[b].points.size() / 2]);
  });
  Network network(ways, rules);
  std::vector<std::pair<std::size_t, std::uint32_t>> edges(parts.size());
  for (std::uint32_t edge = 0; edge < order.size(); ++edge) {
    network.add(parts[order[edge]]);
    edges[order[edge]] = {parts[order[edge]].way, edge};
  }
  if (!rules.restrictions.empty()) network.restrict(edges);
  if (faults) *faults = network.faults();
  return network.take();
}

}  // namespace wayloom
