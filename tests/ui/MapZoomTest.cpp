#include <cmath>
#include <limits>

#include "ui/MapZoom.h"

namespace wayloom {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Computed with the sine and logarithm of the C library in single precision; double precision
// differs in all but the first two latitudes.
TEST(MapZoom, PlacesCoordinatesOnTheGrid) {
  const struct {
    double longitude, x;
  } longitudes[] = {{-180, 0},          {-90, 134217728},    {0, 268435456},   {0.1, 268584587},
                    {11.97, 286286414}, {103.85, 423307801}, {180, 536870912}, {190, 551783993}};
  for (const auto& test : longitudes) {
    EXPECT_EQ(longitudeToPixelSpaceX(test.longitude), test.x) << test.longitude;
  }
  const struct {
    double latitude, y;
  } latitudes[] = {{0, 268435456},
                   {-1e-9, 268435456},
                   {1.3521, 266418872},
                   {-33.8688, 322172073},
                   {37.33, 208348740},
                   {47.14, 188525048},
                   {57.7089, 162516023},
                   {-60, 380963807},
                   {80, 60268878},
                   {85.05112877980659, -130},
                   {-85.05112877980659, 536871042}};
  for (const auto& test : latitudes) {
    EXPECT_EQ(latitudeToPixelSpaceY(test.latitude), test.y) << test.latitude;
  }
}

TEST(MapZoom, FindsWholePixelsOnTheGlobe) {
  const struct {
    double x, longitude;
  } columns[] = {{0, -180}, {0.4, -180}, {268435456, 0}, {286285000.5, 11.969052627682684}};
  for (const auto& test : columns) {
    EXPECT_DOUBLE_EQ(pixelSpaceXToLongitude(test.x), test.longitude) << test.x;
  }
  const struct {
    double y, latitude;
  } rows[] = {{0, 85.05112877980659},
              {268435456, 0},
              {200000000, 41.64803176818228},
              {-1e6, 85.10863919678847}};
  for (const auto& test : rows) {
    EXPECT_DOUBLE_EQ(pixelSpaceYToLatitude(test.y), test.latitude) << test.y;
  }
}

TEST(MapZoom, ComesBackWithinThePixelsLost) {
  double previousY = kInfinity;
  for (double degrees = -80; degrees <= 80; degrees += 0.731) {
    const double y = latitudeToPixelSpaceY(degrees);
    EXPECT_LT(y, previousY) << degrees;
    previousY = y;
    EXPECT_NEAR(pixelSpaceYToLatitude(y), degrees, 5e-5) << degrees;
    EXPECT_NEAR(pixelSpaceXToLongitude(longitudeToPixelSpaceX(2 * degrees)), 2 * degrees, 4e-7)
        << degrees;
  }
}

TEST(MapZoom, SpansWhatAViewShows) {
  const struct {
    Coordinate center;
    std::uint64_t level;
    double width, height;
    CoordinateSpan span;
  } cases[] = {
      {{0, 0}, 20, 320, 480, {0.0003218650817746571, 0.00021457672119140625}},
      {{57.7089, 11.97}, 14, 375, 667, {0.015291830326297884, 0.016093254089351916}},
      {{-33.8688, 151.2093}, 3, 375, 667, {47.839129728998024, 32.958984375}},
      {{57.7089, 11.97}, 28, 320, 480, {7.164463369235818e-07, 1.341104507446289e-06}},
      {{0, 0}, 0, 320, 480, {167.95851899772413, 225}},
      {{0, 0}, 40, 320, 480, {0, 0}},  // Less than a grid pixel.
  };
  for (const auto& test : cases) {
    const CoordinateSpan span = coordinateSpan(test.center, test.level, test.width, test.height);
    EXPECT_NEAR(span.latitudeDelta, test.span.latitudeDelta, 1e-12) << test.level;
    EXPECT_NEAR(span.longitudeDelta, test.span.longitudeDelta, 1e-12) << test.level;
  }
}

TEST(MapZoom, TakesPolesAndHugeValues) {
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
  EXPECT_EQ(coordinateSpan({0, 0}, std::uint64_t{1} << 62, 320, 480), (CoordinateSpan{0, 0}));
  const CoordinateSpan wrapped =
      coordinateSpan({0, 0}, std::numeric_limits<std::uint64_t>::max(), 320, 480);
  EXPECT_NEAR(wrapped.longitudeDelta, 450, 1e-9);
}

}  // namespace
}  // namespace wayloom
