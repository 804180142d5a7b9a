#include "map/MapPointAnnotation.h"
#include "ui/MapViewZoom.h"
#include "ui/MapZoom.h"

namespace wayloom {
namespace {

TEST(MapViewZoom, ShowsTheSpanOfALevel) {
  MapView map;
  map.setSize({320, 480});
  for (std::uint64_t level : {3, 10, 14, 17}) {
    const Coordinate center{57.7089, 11.97};
    setCenterCoordinate(map, center, level, Animated::No);
    const CoordinateSpan asked = coordinateSpanWithMapView(map, center, level);
    EXPECT_EQ(asked, coordinateSpan(center, level, 320, 480)) << level;
    const MapRegion shown = map.region();
    EXPECT_NEAR(shown.center.latitude, center.latitude, 1e-9) << level;
    EXPECT_NEAR(shown.center.longitude, center.longitude, 1e-9) << level;
    // The map centres the latitudes a little differently and shows the whole region.
    EXPECT_GE(shown.span.longitudeDelta, asked.longitudeDelta * 0.9999) << level;
    EXPECT_LE(shown.span.longitudeDelta, asked.longitudeDelta * 1.35) << level;
  }
}

TEST(MapViewZoom, LimitsTheLevel) {
  // A map without height keeps the region as it was asked for.
  MapView map;
  map.setWidth(1e6);
  const auto spanAt = [&map](std::uint64_t level) {
    setCenterCoordinate(map, {0, 0}, level, Animated::No);
    return map.region().span.longitudeDelta;
  };
  EXPECT_NEAR(spanAt(27), 1e6 / 128 * 360 / (1 << 29), 1e-6);
  for (std::uint64_t level : {std::uint64_t{28}, std::uint64_t{40}, ~std::uint64_t{0}}) {
    EXPECT_NEAR(spanAt(level), 1e6 / 256 * 360 / (1 << 29), 1e-6) << level;
  }
}

TEST(MapPointAnnotation, KeepsTheLow32BitsOfATag) {
  const struct {
    std::int64_t set;
    std::int32_t read;
  } cases[] = {{111111, 111111},          {-1, -1},        {2147483647, 2147483647},
               {2147483648, -2147483648}, {4294967296, 0}, {4294967298, 2}};
  for (const auto& test : cases) {
    MapPointAnnotation annotation;
    EXPECT_EQ(annotation.tag, 0);
    annotation.setTag(test.set);
    EXPECT_EQ(annotation.tag, test.read) << test.set;
  }
}

}  // namespace
}  // namespace wayloom
