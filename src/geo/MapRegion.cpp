#include "geo/MapRegion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace wayloom {

MapRegion regionWithDistance(Coordinate center, double latitudinalMetres,
                             double longitudinalMetres) {
  constexpr double kMeanRadiusMetres = 6371008.8;
  constexpr double kMetresPerDegree = kMeanRadiusMetres * std::numbers::pi / 180;
  const double shrink = std::cos(center.latitude * std::numbers::pi / 180);
  const double longitudeDelta =
      shrink > 0 ? longitudinalMetres / (kMetresPerDegree * shrink) : 360.0;
  return {center,
          {std::min(latitudinalMetres / kMetresPerDegree, 180.0), std::min(longitudeDelta, 360.0)}};
}

MapRegion regionBetween(Coordinate one, Coordinate other) {
  return {{(one.latitude + other.latitude) * 0.5, (one.longitude + other.longitude) * 0.5},
          {std::abs(one.latitude - other.latitude), std::abs(one.longitude - other.longitude)}};
}

}  // namespace wayloom
