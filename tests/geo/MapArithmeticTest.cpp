#include <cmath>

#include "geo/MapRegion.h"
#include "geo/WebMercator.h"

namespace wayloom {
namespace {

TEST(WebMercatorTest, KeepsPolesAndHugeValuesOnTheSquare) {
  for (double latitude : {90.0, 89.0, 1e300, kMercatorLatitudeLimit}) {
    EXPECT_NEAR(worldPoint({latitude, 0}).y, 0, 1e-12) << latitude;
    EXPECT_NEAR(worldPoint({-latitude, 0}).y, 1, 1e-12) << latitude;
  }
}

TEST(WebMercatorTest, WrapsLongitudesAcrossTheAntimeridian) {
  const std::pair<double, double> cases[] = {{180, -180}, {-180, -180}, {181, -179},
                                             {-181, 179}, {540, -180},  {11.97, 11.97}};
  for (const auto& [longitude, wrapped] : cases) {
    EXPECT_NEAR(wrapLongitude(longitude), wrapped, 1e-12) << longitude;
  }
}

TEST(MapRegionTest, MeasuresMetresOnTheGround) {
  const MapRegion equator = regionWithDistance({0, 0}, 2000, 2000);
  EXPECT_NEAR(equator.span.latitudeDelta, 2000 / 111195.08, 1e-7);
  EXPECT_NEAR(equator.span.longitudeDelta, equator.span.latitudeDelta, 1e-12);
  const MapRegion north = regionWithDistance({60, 0}, 2000, 2000);
  EXPECT_NEAR(north.span.longitudeDelta, 2 * equator.span.longitudeDelta, 1e-9);
  const MapRegion pole = regionWithDistance({90, 0}, 2000, 2000);
  EXPECT_LE(pole.span.longitudeDelta, 360);
  EXPECT_TRUE(std::isfinite(pole.span.longitudeDelta));
}

}  // namespace
}  // namespace wayloom
