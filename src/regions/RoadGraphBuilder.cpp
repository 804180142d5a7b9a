#include "regions/RoadGraphBuilder.h"

#include <algorithm>
#include <cstddef>
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

using Points = std::vector<RoadPoint>;
using Numbers = std::unordered_map<RoadPoint, std::uint32_t, PointHash>;

/// A part of a way from one junction to the next.
struct Stretch {
  Points points;
  RoadUse use;
};

Points pointsOf(const RoadWay& way) {
  Points points;
  for (const Coordinate& position : way.line) {
    const RoadPoint point = roadPoint(position);
    if (points.empty() || point != points.back()) points.push_back(point);
  }
  return points;
}

std::vector<Stretch> stretches(const std::vector<RoadWay>& ways) {
  std::vector<Points> lines;
  Numbers uses;
  for (const RoadWay& way : ways) {
    const Points& points = lines.emplace_back(pointsOf(way));
    for (const RoadPoint& point : points) ++uses[point];
  }
  std::vector<Stretch> result;
  for (std::size_t way = 0; way < ways.size(); ++way) {
    const Points& points = lines[way];
    std::size_t begin = 0;
    for (std::size_t index = 1; index < points.size(); ++index) {
      if (index + 1 < points.size() && uses[points[index]] < 2) continue;
      result.push_back({{points.begin() + static_cast<std::ptrdiff_t>(begin),
                         points.begin() + static_cast<std::ptrdiff_t>(index) + 1},
                        ways[way].use});
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

}  // namespace

RoadNetwork roadNetwork(const std::vector<RoadWay>& ways) {
  std::vector<Stretch> parts = stretches(ways);
  // Neighbours in the file are neighbours on the ground: the index of the edges relies on it, and
  // a search then reads little memory.
  std::stable_sort(parts.begin(), parts.end(), [](const Stretch& a, const Stretch& b) {
    return placeInOrder(a.points[a.points.size() / 2]) <
           placeInOrder(b.points[b.points.size() / 2]);
  });
  RoadNetwork network;
  Numbers junctions;
  const auto junction = [&](RoadPoint point) {
    const auto [found, isNew] =
        junctions.emplace(point, static_cast<std::uint32_t>(network.junctions.size()));
    if (isNew) network.junctions.push_back(point);
    return found->second;
  };
  for (const Stretch& part : parts) {
    const std::uint32_t from = junction(part.points.front());
    const std::uint32_t to = junction(part.points.back());
    network.edges.push_back({from, to, static_cast<std::uint32_t>(network.bends.size()), part.use});
    network.bends.insert(network.bends.end(), part.points.begin() + 1, part.points.end() - 1);
  }
  return network;
}

}  // namespace wayloom
