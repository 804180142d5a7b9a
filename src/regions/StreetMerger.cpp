#include "regions/StreetMerger.h"

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>

namespace wayloom {

namespace {

// Wider than a square or a park that interrupts a street, narrower than the way to the next town.
constexpr double kGapMetres = 300;

// The box around a line and what may be near it.
RegionBounds reachOf(const Line& line) {
  const RegionBounds bounds = boundsOf(line);
  const RegionBounds corner = boundsAround({bounds.north, bounds.east}, kGapMetres).front();
  const double width = corner.east - corner.west;
  const double height = corner.north - corner.south;
  return {bounds.west - width, bounds.south - height, bounds.east + width, bounds.north + height};
}

bool areNear(const Line& a, const Line& b) {
  const auto isNear = [](const Line& positions, const Line& line) {
    return std::any_of(positions.begin(), positions.end(), [&](Coordinate position) {
      return nearestSpot(position, line).metres <= kGapMetres;
    });
  };
  return isNear(a, b) || isNear(b, a);
}

// The parts that ways belong to, as the index of one way of each part.
class Parts {
 public:
  explicit Parts(std::size_t count) : mParent(count) {
    std::iota(mParent.begin(), mParent.end(), std::size_t{0});
  }
  std::size_t of(std::size_t way) {
    while (mParent[way] != way) way = mParent[way] = mParent[mParent[way]];
    return way;
  }
  void join(std::size_t a, std::size_t b) { mParent[of(a)] = of(b); }

 private:
  std::vector<std::size_t> mParent;
};

Coordinate middleOf(const std::vector<Line>& lines) {
  RegionBounds all = boundsOf(lines.front());
  for (const Line& line : lines) {
    const RegionBounds bounds = boundsOf(line);
    all = {std::min(all.west, bounds.west), std::min(all.south, bounds.south),
           std::max(all.east, bounds.east), std::max(all.north, bounds.north)};
  }
  const Coordinate center{(all.south + all.north) / 2, (all.west + all.east) / 2};
  NearestSpot nearest{std::numeric_limits<double>::infinity(), center};
  for (const Line& line : lines) {
    const NearestSpot spot = nearestSpot(center, line);
    if (spot.metres < nearest.metres) nearest = spot;
  }
  return nearest.coordinate;
}

void mergeNamesakes(const std::string& name, std::vector<Line> lines,
                    std::vector<MergedStreet>& streets) {
  // From west to east, so that each is held only against those that begin within its reach.
  std::sort(lines.begin(), lines.end(),
            [](const Line& a, const Line& b) { return boundsOf(a).west < boundsOf(b).west; });
  std::vector<RegionBounds> bounds;
  for (const Line& line : lines) bounds.push_back(boundsOf(line));
  Parts parts(lines.size());
  for (std::size_t a = 0; a < lines.size(); ++a) {
    const RegionBounds reach = reachOf(lines[a]);
    for (std::size_t b = a + 1; b < lines.size() && bounds[b].west <= reach.east; ++b) {
      if (bounds[b].south > reach.north || bounds[b].north < reach.south) continue;
      if (parts.of(a) != parts.of(b) && areNear(lines[a], lines[b])) parts.join(a, b);
    }
  }
  std::map<std::size_t, MergedStreet> merged;
  for (std::size_t way = 0; way < lines.size(); ++way) {
    merged[parts.of(way)].lines.push_back(std::move(lines[way]));
  }
  for (auto& [part, street] : merged) {
    street.name = name;
    street.middle = middleOf(street.lines);
    streets.push_back(std::move(street));
  }
}

}  // namespace

std::vector<MergedStreet> mergeStreets(std::vector<NamedWay> ways) {
  std::map<std::string, std::vector<Line>> byName;
  for (auto& way : ways) byName[way.name].push_back(std::move(way.line));
  std::vector<MergedStreet> streets;
  for (auto& [name, lines] : byName) mergeNamesakes(name, std::move(lines), streets);
  return streets;
}

}  // namespace wayloom
