#include "geo/MapZoom.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace wayloom {

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kMercatorOffset = 268435456;
constexpr double kMercatorRadius = 85445659.44705395;
constexpr std::uint64_t kPixelPerPointLevel = 20;

// Division by zero at the poles gives an infinity.
static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);

}  // namespace

double longitudeToPixelSpaceX(double longitude) {
  return std::round(kMercatorOffset + kMercatorRadius * longitude * kPi / 180);
}

double latitudeToPixelSpaceY(double latitude) {
  const double radians = latitude * kPi / 180;
  // Narrowing what a float cannot hold is undefined.
  if (!(std::abs(radians) <= std::numeric_limits<float>::max())) {
    return std::numeric_limits<double>::quiet_NaN();
  }
  const float sine = std::sin(static_cast<float>(radians));
  const float ratio = (1 + sine) / (1 - sine);
  const float logarithm = std::log(ratio);
  return std::round(kMercatorOffset - kMercatorRadius * static_cast<double>(logarithm) / 2);
}

double pixelSpaceXToLongitude(double pixelX) {
  return (std::round(pixelX) - kMercatorOffset) / kMercatorRadius * 180 / kPi;
}

double pixelSpaceYToLatitude(double pixelY) {
  const double north = (std::round(pixelY) - kMercatorOffset) / kMercatorRadius;
  return (kPi / 2 - 2 * std::atan(std::exp(north))) * 180 / kPi;
}

CoordinateSpan coordinateSpan(Coordinate center, std::uint64_t zoomLevel, double width,
                              double height) {
  const auto exponent = static_cast<std::int64_t>(kPixelPerPointLevel - zoomLevel);
  const double pixelsPerPoint = std::pow(2.0, static_cast<double>(exponent));
  const double scaledWidth = pixelsPerPoint * width;
  const double scaledHeight = pixelsPerPoint * height;
  const double left = longitudeToPixelSpaceX(center.longitude) - scaledWidth / 2;
  const double top = latitudeToPixelSpaceY(center.latitude) - scaledHeight / 2;
  return {pixelSpaceYToLatitude(top) - pixelSpaceYToLatitude(top + scaledHeight),
          pixelSpaceXToLongitude(left + scaledWidth) - pixelSpaceXToLongitude(left)};
}

}  // namespace wayloom
