#include "roads/RoadGraph.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <utility>

namespace wayloom {

namespace {

constexpr double kRadians = std::numbers::pi / 180;
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

// Where a line heads at its beginning: to the first position that is another.
template <typename Iterator>
Heading headingAlong(Iterator begin, Iterator end) {
  const auto next = std::find_if(begin, end, [&](Coordinate each) { return each != *begin; });
  if (next == end) return {};
  const double east = (next->longitude - begin->longitude) * std::cos(begin->latitude * kRadians);
  const double north = next->latitude - begin->latitude;
  const double length = std::hypot(east, north);
  if (!(length > 0)) return {};
  return {static_cast<float>(east / length), static_cast<float>(north / length)};
}

}  // namespace

Coordinate positionAlong(const Line& line, double metres) {
  for (std::size_t at = 1; at < line.size(); ++at) {
    const double step = distanceMetres(line[at - 1], line[at]);
    if (metres > step) {
      metres -= step;
      continue;
    }
    const double share = step > 0 ? std::max(metres, 0.0) / step : 0;
    return {std::lerp(line[at - 1].latitude, line[at].latitude, share),
            std::lerp(line[at - 1].longitude, line[at].longitude, share)};
  }
  return line.back();
}

SpacePoint spaceOf(Coordinate coordinate) {
  const double latitude = coordinate.latitude * kRadians;
  const double longitude = coordinate.longitude * kRadians;
  const double radius = kEarthRadiusMetres * std::cos(latitude);
  return {radius * std::cos(longitude), radius * std::sin(longitude),
          kEarthRadiusMetres * std::sin(latitude)};
}

RoadGraph::RoadGraph(RoadNetwork network)
    : mNetwork(std::move(network)), mRules(mNetwork.rules, 2 * mNetwork.edges.size()) {
  measure();
  findBlindArcs();
  findArrivals();
  findDepartures();
  findThroughArcs();
  std::vector<std::uint32_t> heads;
  heads.reserve(mDepartures.size());
  for (const Departure& departure : mDepartures) {
    heads.push_back(mArrivals[departure.arc].junction);
  }
  mComponents = RoadGraphComponents({mFirst, heads});
}

void RoadGraph::measure() {
  mSpace.reserve(mNetwork.junctions.size());
  for (const RoadPoint& junction : mNetwork.junctions) {
    mSpace.push_back(spaceOf(coordinateOf(junction)));
  }
  std::vector<RegionBounds> boxes;
  boxes.reserve(edges().size());
  mMetres.reserve(edges().size());
  mHeadings.reserve(2 * edges().size());
  for (std::uint32_t edge = 0; edge < edges().size(); ++edge) {
    const Line positions = line(edge);
    mMetres.push_back(metresTo(positions, positions.size() - 1));
    mHeadings.push_back(headingAlong(positions.begin(), positions.end()));
    mHeadings.push_back(headingAlong(positions.rbegin(), positions.rend()));
    boxes.push_back(boundsOf(positions));
    mFastest = std::max(mFastest, metresPerSecond(edges()[edge].use));
  }
  mTree = RoadGraphTree(std::move(boxes));
}

// Takes away what ends in a dead end, again and again. Nobody turns round on a ferry, so what lies
// behind one stays.
void RoadGraph::findBlindArcs() {
  mIsBlind.assign(2 * edges().size(), false);
  std::vector<std::uint32_t> roadsAt(mNetwork.junctions.size());
  // The exclusive or of the roads that are left: the road, once it is one.
  std::vector<std::uint32_t> lastAt(mNetwork.junctions.size());
  for (std::uint32_t edge = 0; edge < edges().size(); ++edge) {
    for (const std::uint32_t junction : {edges()[edge].from, edges()[edge].to}) {
      ++roadsAt[junction];
      lastAt[junction] ^= edge;
    }
  }
  for (std::uint32_t first = 0; first < roadsAt.size(); ++first) {
    for (std::uint32_t junction = first; roadsAt[junction] == 1;) {
      const RoadEdge& edge = edges()[lastAt[junction]];
      if (edge.use.isFerry) break;
      const RoadArc blind = roadArc(lastAt[junction], edge.to == junction);
      mIsBlind[blind] = true;
      mBlindArcs.emplace(junction, blind);
      roadsAt[junction] = 0;
      junction = mNetwork.tail(blind);
      --roadsAt[junction];
      lastAt[junction] ^= edgeOf(blind);
    }
  }
}

std::vector<RoadArc> RoadGraph::blindArcsTo(const RoadSpot& spot) const {
  std::vector<RoadArc> arcs;
  const RoadEdge& edge = edges()[spot.edge];
  // The road itself leads to one of its ends, if it is blind.
  for (const std::uint32_t end : {edge.from, edge.to}) {
    for (auto found = mBlindArcs.find(end); found != mBlindArcs.end();
         found = mBlindArcs.find(mNetwork.tail(found->second))) {
      arcs.push_back(found->second);
    }
  }
  return arcs;
}

void RoadGraph::findArrivals() {
  std::vector<std::uint8_t> roadsAt(mNetwork.junctions.size());
  for (const RoadEdge& edge : edges()) {
    ++roadsAt[edge.from];
    ++roadsAt[edge.to];
  }
  mArrivals.reserve(2 * edges().size());
  for (RoadArc arc = 0; arc < 2 * edges().size(); ++arc) {
    const RoadEdge& edge = edges()[edgeOf(arc)];
    const std::uint32_t head = mNetwork.head(arc);
    const Heading back = mHeadings[reversed(arc)];
    mArrivals.push_back({head,
                         {-back.east, -back.north},
                         isForward(arc) ? edge.signalAtEnd : edge.signalAtBegin,
                         edge.use.keepsLeft,
                         roadsAt[head] == 1,
                         roadsAt[head] > 2,
                         edge.use.isFerry || mRules.isBound(arc)});
  }
}

void RoadGraph::findDepartures() {
  mFirst.assign(mNetwork.junctions.size() + 1, 0);
  const auto arcCount = static_cast<RoadArc>(2 * edges().size());
  for (RoadArc arc = 0; arc < arcCount; ++arc) {
    if (mNetwork.mayDrive(arc)) ++mFirst[mNetwork.tail(arc) + 1];
  }
  std::partial_sum(mFirst.begin(), mFirst.end(), mFirst.begin());
  mDepartures.resize(mFirst.back());
  std::vector<std::uint32_t> next(mFirst);
  for (RoadArc arc = 0; arc < arcCount; ++arc) {
    if (!mNetwork.mayDrive(arc)) continue;
    const std::uint32_t edge = edgeOf(arc);
    const double factor = edges()[edge].use.destinationOnly ? kResidentsFactor : 1;
    mDepartures[next[mNetwork.tail(arc)]++] = {arc,
                                               static_cast<float>(seconds(edge) * factor),
                                               mHeadings[arc],
                                               mArrivals[arc].junction,
                                               mIsBlind[arc],
                                               false};
  }
}

void RoadGraph::findThroughArcs() {
  for (Departure& departure : mDepartures) {
    const auto onward = departures(departure.head);
    const auto isOpen = [&](const Departure& each) {
      return !each.isBlind && each.arc != reversed(departure.arc);
    };
    departure.isThrough = !mArrivals[departure.arc].isBound &&
                          std::count_if(onward.begin(), onward.end(), isOpen) == 1;
  }
}

Line RoadGraph::line(std::uint32_t edge) const {
  Line line;
  const auto points = mNetwork.points(edge);
  line.reserve(points.size());
  for (const RoadPoint& point : points) line.push_back(coordinateOf(point));
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
  RoadSpot spot{edge, nearest.coordinate, 0, nearest.metres};
  std::size_t before = nearest.position;
  for (std::size_t next = nearest.position; next < positions.size(); ++next) {
    if (next > nearest.position + 1) break;
    if (distanceMetres(positions[next], nearest.coordinate) > kSameSpotMetres) continue;
    spot.coordinate = positions[next];
    before = next;
    break;
  }
  spot.alongMetres =
      metresTo(positions, before) + distanceMetres(positions[before], spot.coordinate);
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
  if (const auto junction = junctionAt(spot)) {
    place.exits.push_back(mComponents.of(*junction));
    place.entries = place.exits;
    return place;
  }
  for (const RoadArc arc : {roadArc(spot.edge, true), roadArc(spot.edge, false)}) {
    if (!mNetwork.mayDrive(arc)) continue;
    place.exits.push_back(mComponents.of(mNetwork.head(arc)));
    place.entries.push_back(mComponents.of(mNetwork.tail(arc)));
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
