#include "geo/WebMercator.h"

#include <algorithm>
#include <cmath>

namespace wayloom {

namespace {
constexpr double kPi = std::numbers::pi;
}

WorldPoint worldPoint(Coordinate coordinate) {
  const double latitude =
      std::clamp(coordinate.latitude, -kMercatorLatitudeLimit, kMercatorLatitudeLimit);
  const double y = std::asinh(std::tan(latitude * kPi / 180));
  return {coordinate.longitude / 360 + 0.5, std::clamp(0.5 - y / (2 * kPi), 0.0, 1.0)};
}

Coordinate coordinateAt(WorldPoint point) {
  const double latitude = std::atan(std::sinh((0.5 - point.y) * 2 * kPi)) * 180 / kPi;
  return {latitude, (point.x - 0.5) * 360};
}

double wrapLongitude(double longitude) {
  const double wrapped = std::fmod(longitude + 180, 360);
  return (wrapped < 0 ? wrapped + 360 : wrapped) - 180;
}

}  // namespace wayloom
