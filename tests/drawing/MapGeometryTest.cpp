#include <cmath>
#include <numbers>

#include "drawing/MapGeometry.h"

namespace wayloom {
namespace {

MapPath circle(MapPoint centre, double radius, int points) {
  MapPath ring;
  for (int i = 0; i <= points; ++i) {
    const double angle = 2 * std::numbers::pi * (i % points) / points;
    ring.push_back({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
  }
  return ring;
}

double areaOf(const std::vector<MapPolygon>& polygons) {
  double area = 0;
  for (const MapPolygon& polygon : polygons) {
    for (const MapPath& ring : polygon) area += signedArea(ring);
  }
  return area;
}

TEST(MapGeometryTest, PiecesCoverWhatWasCut) {
  MapPath hole = circle({10, 20}, 40, 500);
  std::reverse(hole.begin(), hole.end());
  const MapPolygon ring = {circle({0, 0}, 100, 3000), hole};
  const auto pieces = cutToPieces({ring}, {-128, -128, 128, 128}, 200, 0);
  EXPECT_GT(pieces.size(), 10U);
  EXPECT_NEAR(areaOf(pieces), areaOf({ring}), 1e-6);
  for (const MapPolygon& piece : pieces) {
    std::size_t points = 0;
    for (const MapPath& path : piece) {
      points += path.size();
      EXPECT_EQ(path.front(), path.back());
    }
    EXPECT_LE(points, 200U);
  }
}

TEST(MapGeometryTest, SimplifyingStaysWithinTheTolerance) {
  const MapPath ring = circle({0, 0}, 100, 2000);
  const MapPath rough = simplified(ring, 1);
  EXPECT_LT(rough.size(), 60U);
  EXPECT_EQ(rough.front(), ring.front());
  EXPECT_EQ(rough.back(), ring.back());
  EXPECT_NEAR(signedArea(rough), signedArea(ring), 2 * std::numbers::pi * 100);
}

TEST(MapGeometryTest, LabelsStandInsideTheirArea) {
  // A crescent: its centre lies outside.
  MapPolygon crescent = {circle({0, 0}, 100, 200)};
  crescent.push_back(circle({30, 0}, 75, 200));
  const MapPoint point = labelPoint(crescent);
  EXPECT_LT(std::hypot(point.x, point.y), 100);
  EXPECT_GT(std::hypot(point.x - 30, point.y), 75);
}

}  // namespace
}  // namespace wayloom
