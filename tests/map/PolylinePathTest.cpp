#include <cmath>
#include <random>

#include "map/PolylinePath.h"

namespace wayloom {
namespace {

MapCamera cameraOver(const MapRegion& region) {
  MapCamera camera;
  camera.setSize({375, 667});
  camera.fit(region);
  return camera;
}

double distanceTo(QPointF point, const std::vector<QPolygonF>& parts) {
  double nearest = 1e9;
  for (const QPolygonF& part : parts) {
    for (qsizetype i = 1; i < part.size(); ++i) {
      const QPointF way = part[i] - part[i - 1], offset = point - part[i - 1];
      const double length = std::max(QPointF::dotProduct(way, way), 1e-12);
      const double along = std::clamp(QPointF::dotProduct(offset, way) / length, 0.0, 1.0);
      const QPointF away = offset - way * along;
      nearest = std::min(nearest, std::hypot(away.x(), away.y()));
    }
  }
  return nearest;
}

qsizetype pointsOf(const std::vector<QPolygonF>& parts) {
  qsizetype count = 0;
  for (const QPolygonF& part : parts) count += part.size();
  return count;
}

TEST(PolylinePathTest, PassesEveryPointInViewThoughItKeepsFew) {
  std::vector<Coordinate> wander{{57.7, 11.97}};
  std::mt19937 random(3);
  std::normal_distribution<double> turn(0, 0.4);
  double direction = 0;
  for (int i = 0; i < 4000; ++i) {
    // Now and then straight back: the tip of a spur must not be cut off.
    direction += i % 100 == 0 ? 3.14159 : turn(random);
    const Coordinate last = wander.back();
    wander.push_back(
        {last.latitude + 2e-5 * std::sin(direction), last.longitude + 4e-5 * std::cos(direction)});
  }
  const PolylinePath path(wander);
  for (double metres : {300.0, 3000.0, 30000.0}) {
    const MapCamera camera = cameraOver(regionWithDistance({57.7, 11.97}, metres, metres));
    const auto parts = path.inView(camera, 5);
    EXPECT_LT(pointsOf(parts), 4000) << metres;
    for (std::size_t i = 0; i < wander.size(); ++i) {
      const QPointF at = camera.viewPoint(worldPoint(wander[i]));
      if (!QRectF(0, 0, 375, 667).contains(at)) continue;
      ASSERT_LT(distanceTo(at, parts), 0.75) << "point " << i << " at " << metres << " m";
    }
  }
}

TEST(PolylinePathTest, WorkIsBoundedHoweverWildTheLine) {
  std::vector<Coordinate> wild;
  std::mt19937 random(4);
  std::uniform_real_distribution<double> part(-1, 1);
  for (int i = 0; i < 100'000; ++i) wild.push_back({10 + part(random), 10 + part(random)});
  for (int i = 0; i < 100'000; ++i) wild.push_back({10 + i * 1e-5, 10 + part(random) * 1e-3});
  const auto parts = PolylinePath(wild).inView(cameraOver({{10, 10}, {2, 2}}), 5);
  EXPECT_GT(pointsOf(parts), 2);
  EXPECT_LT(pointsOf(parts), 4100);
  for (const QPolygonF& polygon : parts) EXPECT_GE(polygon.size(), 2);
}

TEST(PolylinePathTest, CrossesTheDateLineInOnePiece) {
  const PolylinePath path({{0, 179}, {0, -179}, {0, -178}});
  for (double longitude : {179.9, -179.9, 180.0}) {
    const auto parts = path.inView(cameraOver({{0, longitude}, {0.1, 5}}), 5);
    ASSERT_EQ(parts.size(), 1u) << longitude;
    EXPECT_LT(parts[0].boundingRect().width(), 375) << longitude;
    EXPECT_GT(parts[0].boundingRect().width(), 100) << longitude;
  }
}

TEST(PolylinePathTest, SenselessPointsAndShortLinesAreNothing) {
  const MapCamera camera = cameraOver({{0, 0}, {1, 1}});
  const std::vector<Coordinate> cases[] = {{}, {{0, 0}}, {{NAN, 0}, {0, 0}}, {{0, 5}, {0, 6}}};
  for (const auto& line : cases) EXPECT_TRUE(PolylinePath(line).inView(camera, 5).empty());
  const auto parts = PolylinePath({{0, -1}, {NAN, NAN}, {0, 1}}).inView(camera, 5);
  ASSERT_EQ(parts.size(), 1u);
  EXPECT_GT(parts[0].boundingRect().width(), 300) << "what lies between two that make sense";
}

}  // namespace
}  // namespace wayloom
