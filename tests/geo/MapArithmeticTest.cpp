#include <cmath>
#include <limits>

#include "geo/MapRegion.h"
#include "geo/MapZoom.h"
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

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Computed with the sine and logarithm of the C library in single precision; double precision
// differs in all but the first two latitudes.
TEST(MapZoomTest, PlacesCoordinatesOnTheGrid) {
  const std::pair<double, double> longitudes[] = {
      {-180, 0},          {-90, 134217728},    {0, 268435456},   {0.1, 268584587},
      {11.97, 286286414}, {103.85, 423307801}, {180, 536870912}, {190, 551783993}};
  for (const auto& [longitude, x] : longitudes) {
    EXPECT_EQ(longitudeToPixelSpaceX(longitude), x) << longitude;
  }
  const std::pair<double, double> latitudes[] = {{0, 268435456},
                                                 {-1e-9, 268435456},
                                                 {-33.8688, 322172073},
                                                 {57.7089, 162516023},
                                                 {80, 60268878},
                                                 {85.05112877980659, -130},
                                                 {-85.05112877980659, 536871042}};
  for (const auto& [latitude, y] : latitudes) {
    EXPECT_EQ(latitudeToPixelSpaceY(latitude), y) << latitude;
  }
}

TEST(MapZoomTest, TakesPolesAndHugeValues) {
  EXPECT_EQ(latitudeToPixelSpaceY(90), -kInfinity);
  EXPECT_EQ(latitudeToPixelSpaceY(-90), kInfinity);
  EXPECT_EQ(pixelSpaceYToLatitude(-kInfinity), 90);
  EXPECT_EQ(pixelSpaceYToLatitude(kInfinity), -90);
  const CoordinateSpan pole = coordinateSpan({90, 0}, 10, 320, 480);
  EXPECT_EQ(pole.latitudeDelta, 0);
  EXPECT_GT(pole.longitudeDelta, 0);
  for (double value : {kNaN, kInfinity, -kInfinity, 1e300, -1e300}) {
    EXPECT_TRUE(std::isnan(latitudeToPixelSpaceY(value))) << value;
    EXPECT_TRUE(std::isnan(coordinateSpan({value, 0}, 10, 320, 480).latitudeDelta)) << value;
  }
  // The level is a number without sign; its distance from 20 has one.
  const auto kMost = std::numeric_limits<std::uint64_t>::max();
  EXPECT_EQ(coordinateSpan({0, 0}, kMost / 4, 320, 480), (CoordinateSpan{0, 0}));
  EXPECT_NEAR(coordinateSpan({0, 0}, kMost, 320, 480).longitudeDelta, 450, 1e-9);
}

}  // namespace
}  // namespace wayloom
