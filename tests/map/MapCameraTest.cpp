#include <cmath>

#include "map/MapCamera.h"

namespace wayloom {

static void PrintTo(const MapRegion& region, std::ostream* out) {
  *out << region.center.latitude << ',' << region.center.longitude << " span "
       << region.span.latitudeDelta << " x " << region.span.longitudeDelta;
}

namespace {

MapCamera cameraOf(QSizeF size, const MapRegion& region) {
  MapCamera camera;
  camera.setSize(size);
  camera.fit(region);
  return camera;
}

constexpr QSizeF kSizes[] = {{375, 667}, {667, 375}, {40, 40}, {3000, 1800}};
constexpr double kLatitudes[] = {-90, -85, -57.7, 0, 1e-9, 48.85, 84.9, 90, 1e300, -1e300};
constexpr double kLongitudes[] = {-180, -0.1, 11.97, 179.9999, 180, 540.5, -1e300, 1e300};
constexpr double kSpans[] = {0, 1e-9, 0.018, 1, 60, 200, 1e300};

template <typename Check>
void forEachCase(const Check& check) {
  for (QSizeF size : kSizes)
    for (double latitude : kLatitudes)
      for (double longitude : kLongitudes)
        for (double height : kSpans)
          for (double width : kSpans) check(size, {{latitude, longitude}, {height, width}});
}

TEST(MapCameraTest, WhatFitsStaysAsItIsAndInTheWorld) {
  forEachCase([](QSizeF size, const MapRegion& region) {
    const MapCamera camera = cameraOf(size, region);
    const MapRegion shown = camera.region();
    const MapCamera again = cameraOf(size, shown);
    const std::string asked = testing::PrintToString(region);
    EXPECT_TRUE(camera.isSameAs(again)) << asked << ": " << camera.zoom() << ", " << again.zoom();
    EXPECT_LE(std::abs(shown.center.latitude), kMercatorLatitudeLimit + 1e-9) << asked;
    EXPECT_GE(shown.center.longitude, -180) << asked;
    EXPECT_LT(shown.center.longitude, 180) << asked;
    EXPECT_LE(shown.span.longitudeDelta, 360 + 1e-9) << asked;
    EXPECT_GE(camera.worldSize(), size.height() - 1e-6) << asked;
    EXPECT_LE(camera.zoom(), MapCamera::kMaximumZoom) << asked;
  });
}

TEST(MapCameraTest, ShowsTheWholeRegionAndNoMoreThanItMust) {
  for (QSizeF size : kSizes) {
    for (double latitude : {-70.0, -57.7, 0.0, 48.85}) {
      for (double height : {0.0, 0.018, 1.0, 15.0}) {
        for (double width : {0.018, 1.0, 15.0}) {
          const MapRegion region{{latitude, 20}, {height, width}};
          const MapCamera camera = cameraOf(size, region);
          if (camera.zoom() == MapCamera::kMaximumZoom) continue;
          const QPointF corner =
              camera.viewPoint(worldPoint({latitude + height / 2, 20 - width / 2}));
          const QPointF opposite =
              camera.viewPoint(worldPoint({latitude - height / 2, 20 + width / 2}));
          const std::string asked = testing::PrintToString(region);
          const double slack = std::min({corner.x(), corner.y(), size.height() - opposite.y()});
          EXPECT_NEAR(slack, 0, 1e-4) << asked;
          EXPECT_NEAR(camera.region().center.latitude, latitude, 1e-9) << asked;
        }
      }
    }
  }
}

TEST(MapCameraTest, AnimatesTheShorterWayAndKeepsACommonPoint) {
  MapCamera from = cameraOf({375, 667}, {{10, 179}, {1, 1}});
  const MapCamera to = cameraOf({375, 667}, {{10, -179}, {1, 1}});
  for (double progress = 0; progress <= 1; progress += 0.1) {
    const double longitude = MapCamera::between(from, to, progress).region().center.longitude;
    EXPECT_GE(std::abs(longitude), 179 - 1e-9) << progress;
  }
  MapCamera zoomed = from;
  const WorldPoint fixed = from.worldPointAt({50, 60});
  zoomed.zoomAbout({50, 60}, 3);
  for (double progress = 0; progress <= 1; progress += 0.1) {
    const QPointF at = MapCamera::between(from, zoomed, progress).viewPoint(fixed);
    EXPECT_LT((at - QPointF(50, 60)).manhattanLength(), 1e-5) << progress;
  }
}

}  // namespace
}  // namespace wayloom
