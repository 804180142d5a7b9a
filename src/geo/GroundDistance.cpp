#include "geo/GroundDistance.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace wayloom {

double distanceMetres(Coordinate from, Coordinate to) {
  constexpr double kRadians = std::numbers::pi / 180;
  const double latitudes = std::sin((to.latitude - from.latitude) * kRadians / 2);
  const double longitudes = std::sin((to.longitude - from.longitude) * kRadians / 2);
  const double chord = latitudes * latitudes + std::cos(from.latitude * kRadians) *
                                                   std::cos(to.latitude * kRadians) * longitudes *
                                                   longitudes;
  return 2 * kEarthRadiusMetres * std::asin(std::sqrt(std::min(1.0, chord)));
}

}  // namespace wayloom
