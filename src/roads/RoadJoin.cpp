#include "roads/RoadJoin.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace wayloom {

namespace {

using Points = std::vector<RoadPoint>;

/// Where one network has junctions that stand for nodes, and which positions lie next to each on
/// the roads there: another network's bend is the same node if a road goes on alike from it.
class Nodes {
 public:
  explicit Nodes(const RoadNetwork& network) {
    for (std::uint32_t edge = 0; edge < network.edges.size(); ++edge) {
      const Points points = network.points(edge);
      const RoadEdge& road = network.edges[edge];
      add(network.numbers[road.from], points.front(), points[1]);
      add(network.numbers[road.to], points.back(), points[points.size() - 2]);
    }
  }

  /// The node at a bend between two positions; 0 if there is none.
  std::int64_t at(RoadPoint bend, RoadPoint before, RoadPoint behind) const {
    for (const RoadPoint next : {before, behind}) {
      const auto found = mNodes.find({bend, next});
      if (found != mNodes.end()) return found->second;
    }
    return 0;
  }

 private:
  void add(std::int64_t number, RoadPoint position, RoadPoint next) {
    if (number != 0) mNodes.emplace(std::pair(position, next), number);
  }

  std::map<std::pair<RoadPoint, RoadPoint>, std::int64_t> mNodes;
};

class Join {
 public:
  void add(const RoadNetwork& network, const Nodes& others) {
    mArcs.clear();
    mOwn.clear();
    for (std::uint32_t edge = 0; edge < network.edges.size(); ++edge) {
      addEdge(network, edge, others);
    }
    for (const RoadRule& rule : network.rules) addRule(rule);
  }

  RoadNetwork take() {
    auto& rules = mNetwork.rules;
    std::sort(rules.begin(), rules.end());
    rules.erase(std::unique(rules.begin(), rules.end()), rules.end());
    return std::move(mNetwork);
  }

 private:
  using Course = std::tuple<std::uint32_t, std::uint32_t, Points>;

  void addEdge(const RoadNetwork& network, std::uint32_t number, const Nodes& others) {
    const RoadEdge& edge = network.edges[number];
    const Points points = network.points(number);
    std::vector<RoadArc> parts;
    std::uint32_t from = junction(network, edge.from);
    std::size_t begin = 0;
    for (std::size_t at = 1; at < points.size(); ++at) {
      const bool isEnd = at + 1 == points.size();
      const std::int64_t node = isEnd ? 0 : others.at(points[at], points[at - 1], points[at + 1]);
      if (!isEnd && node == 0) continue;
      const std::uint32_t to = isEnd ? junction(network, edge.to) : nodeJunction(node, points[at]);
      RoadEdge part = edge;
      part.signalAtBegin = edge.signalAtBegin && begin == 0;
      part.signalAtEnd = edge.signalAtEnd && isEnd;
      part.from = from;
      part.to = to;
      parts.push_back(addPart(part, {points.begin() + static_cast<std::ptrdiff_t>(begin),
                                     points.begin() + static_cast<std::ptrdiff_t>(at) + 1}));
      from = to;
      begin = at;
    }
    mArcs.push_back(std::move(parts));
  }

  // The forward arc of a part that may be there already.
  RoadArc addPart(RoadEdge part, Points points) {
    const auto fresh = static_cast<std::uint32_t>(mNetwork.edges.size());
    const auto [found, isFresh] =
        mCourses.emplace(Course{part.from, part.to, std::move(points)}, fresh);
    if (!isFresh) return roadArc(found->second, true);
    const Points& line = std::get<Points>(found->first);
    part.firstBend = static_cast<std::uint32_t>(mNetwork.bends.size());
    mNetwork.edges.push_back(part);
    mNetwork.bends.insert(mNetwork.bends.end(), line.begin() + 1, line.end() - 1);
    return roadArc(fresh, true);
  }

  std::uint32_t junction(const RoadNetwork& network, std::uint32_t number) {
    const std::int64_t node = network.numbers[number];
    if (node != 0) return nodeJunction(node, network.junctions[number]);
    const auto [found, isFresh] = mOwn.emplace(number, mNetwork.junctions.size());
    if (isFresh) addJunction(0, network.junctions[number]);
    return found->second;
  }

  std::uint32_t nodeJunction(std::int64_t node, RoadPoint position) {
    const auto [found, isFresh] = mJunctions.emplace(node, mNetwork.junctions.size());
    if (isFresh) addJunction(node, position);
    return found->second;
  }

  void addJunction(std::int64_t node, RoadPoint position) {
    mNetwork.junctions.push_back(position);
    mNetwork.numbers.push_back(node);
  }

  // The first arc's last part, all of those between, and the last arc's first part.
  void addRule(const RoadRule& rule) {
    RoadRule joined{{}, rule.isOnly, rule.hours};
    for (std::size_t at = 0; at < rule.arcs.size(); ++at) {
      std::vector<RoadArc> parts = mArcs[edgeOf(rule.arcs[at])];
      if (!isForward(rule.arcs[at])) {
        std::reverse(parts.begin(), parts.end());
        for (RoadArc& part : parts) part = reversed(part);
      }
      const auto begin = at == 0 ? parts.end() - 1 : parts.begin();
      const auto end = at + 1 == rule.arcs.size() ? parts.begin() + 1 : parts.end();
      joined.arcs.insert(joined.arcs.end(), begin, end);
    }
    if (joined.arcs.size() <= kMostArcsInARule) mNetwork.rules.push_back(std::move(joined));
  }

  RoadNetwork mNetwork;
  std::map<std::int64_t, std::uint32_t> mJunctions;
  std::map<Course, std::uint32_t> mCourses;
  /// Of the network being added: the forward arcs of each edge's parts; its junctions without node.
  std::vector<std::vector<RoadArc>> mArcs;
  std::map<std::uint32_t, std::uint32_t> mOwn;
};

bool shareNodes(const RoadNetwork& a, const RoadNetwork& b) {
  const std::set<std::int64_t> numbers(a.numbers.begin(), a.numbers.end());
  return std::any_of(b.numbers.begin(), b.numbers.end(),
                     [&](std::int64_t number) { return number != 0 && numbers.contains(number); });
}

bool isTooCrowded(const RoadNetwork& network) {
  std::vector<std::uint32_t> roadsAt(network.junctions.size());
  for (const RoadEdge& edge : network.edges) {
    ++roadsAt[edge.from];
    ++roadsAt[edge.to];
  }
  return std::any_of(roadsAt.begin(), roadsAt.end(),
                     [](std::uint32_t count) { return count > kMostRoadsAtAJunction; });
}

}  // namespace

std::optional<RoadNetwork> joinedRoads(const RoadNetwork& a, const RoadNetwork& b) {
  if (!shareNodes(a, b)) return std::nullopt;
  Join join;
  join.add(a, Nodes(b));
  join.add(b, Nodes(a));
  RoadNetwork network = join.take();
  if (isTooCrowded(network)) return std::nullopt;
  return network;
}

}  // namespace wayloom
