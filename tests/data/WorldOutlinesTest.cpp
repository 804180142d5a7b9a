#include <cmath>

#include "WorldOutlines.h"
#include "geo/WebMercator.h"

namespace wayloom {
namespace {

constexpr double kEdge = kMercatorHalfWorldMetres;

Topology oneRing(std::vector<Coordinate> ring) {
  Topology topology;
  topology.arcs = {std::move(ring)};
  topology.areas = {{"1", "Land", {{{0}}}}};
  return topology;
}

// Whether the polygons, filled by the even-odd rule, cover a place.
bool covers(const std::vector<MapPolygon>& polygons, Coordinate place) {
  const MapPoint p = mapPoint(place);
  bool inside = false;
  for (const MapPolygon& polygon : polygons) {
    for (const MapPath& ring : polygon) {
      for (std::size_t i = 1; i < ring.size(); ++i) {
        const MapPoint& a = ring[i - 1];
        const MapPoint& b = ring[i];
        if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (b.x - a.x) * (p.y - a.y) / (b.y - a.y)) {
          inside = !inside;
        }
      }
    }
  }
  return inside;
}

TEST(WorldOutlinesTest, LandAcrossTheAntimeridianShowsOnBothSides) {
  const auto topology = oneRing({{60, 170}, {70, 170}, {70, -170}, {60, -170}, {60, 170}});
  const auto polygons = mapPolygons(topology, topology.areas[0]);
  for (const double longitude : {171.0, 179.9, -179.9, -171.0}) {
    EXPECT_TRUE(covers(polygons, {65, longitude})) << longitude;
  }
  for (const double longitude : {169.0, 0.0, -169.0}) {
    EXPECT_FALSE(covers(polygons, {65, longitude})) << longitude;
  }
}

TEST(WorldOutlinesTest, LandAroundThePoleReachesTheMapsEdge) {
  std::vector<Coordinate> ring;
  for (int longitude = -180; longitude <= 180; longitude += 30) {
    ring.push_back({-70, static_cast<double>(longitude)});
  }
  ring.back() = ring.front();
  const auto topology = oneRing(ring);
  const auto polygons = mapPolygons(topology, topology.areas[0]);
  for (const double longitude : {-179.0, -1.0, 90.0, 179.0}) {
    EXPECT_TRUE(covers(polygons, {-84, longitude})) << longitude;
    EXPECT_FALSE(covers(polygons, {-60, longitude})) << longitude;
  }
}

TEST(WorldOutlinesTest, TheSeamIsNoCoast) {
  const auto topology =
      oneRing({{60, 170}, {70, 170}, {70, 180}, {65, -180}, {60, 180}, {60, 170}});
  for (const MapPath& line : mapLines(topology, ArcUse::kCoast)) {
    for (std::size_t i = 1; i < line.size(); ++i) {
      EXPECT_FALSE(std::abs(std::abs(line[i].x) - kEdge) < 1 &&
                   std::abs(std::abs(line[i - 1].x) - kEdge) < 1)
          << line[i].y;
    }
  }
}

}  // namespace
}  // namespace wayloom
