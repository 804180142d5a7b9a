#include "regions/GroundGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "geo/WebMercator.h"

namespace wayloom {

namespace {

constexpr double kRadians = std::numbers::pi / 180;
constexpr double kMetresPerDegree = kEarthRadiusMetres * kRadians;

}  // namespace

NearestSpot nearestSpot(Coordinate from, std::span<const Coordinate> line) {
  const double eastScale = kMetresPerDegree * std::cos(from.latitude * kRadians);
  struct Offset {
    double east, north;
  };
  const auto offset = [&](Coordinate position) {
    return Offset{wrapLongitude(position.longitude - from.longitude) * eastScale,
                  (position.latitude - from.latitude) * kMetresPerDegree};
  };
  Offset nearest = offset(line.front());
  double nearestSquare = nearest.east * nearest.east + nearest.north * nearest.north;
  std::size_t position = 0;
  for (std::size_t index = 1; index < line.size(); ++index) {
    const Offset a = offset(line[index - 1]);
    const Offset b = offset(line[index]);
    const Offset along{b.east - a.east, b.north - a.north};
    const double lengthSquare = along.east * along.east + along.north * along.north;
    const double share =
        lengthSquare > 0
            ? std::clamp(-(a.east * along.east + a.north * along.north) / lengthSquare, 0.0, 1.0)
            : 0.0;
    const Offset spot{a.east + share * along.east, a.north + share * along.north};
    const double square = spot.east * spot.east + spot.north * spot.north;
    if (square < nearestSquare) {
      nearestSquare = square;
      nearest = spot;
      position = share < 1 ? index - 1 : index;
    }
  }
  const double longitude = eastScale > 0 ? from.longitude + nearest.east / eastScale : 0;
  return {std::sqrt(nearestSquare),
          {from.latitude + nearest.north / kMetresPerDegree, wrapLongitude(longitude)},
          position};
}

bool encloses(std::span<const Line> rings, Coordinate position) {
  bool inside = false;
  for (const Line& ring : rings) {
    for (std::size_t index = 0; index < ring.size(); ++index) {
      const Coordinate& a = ring[index == 0 ? ring.size() - 1 : index - 1];
      const Coordinate& b = ring[index];
      if ((a.latitude > position.latitude) == (b.latitude > position.latitude)) continue;
      const double share = (position.latitude - a.latitude) / (b.latitude - a.latitude);
      if (position.longitude < a.longitude + share * (b.longitude - a.longitude)) inside = !inside;
    }
  }
  return inside;
}

RegionBounds boundsOf(std::span<const Coordinate> positions) {
  const Coordinate& first = positions.front();
  RegionBounds bounds{first.longitude, first.latitude, first.longitude, first.latitude};
  for (const Coordinate& position : positions) {
    bounds.west = std::min(bounds.west, position.longitude);
    bounds.east = std::max(bounds.east, position.longitude);
    bounds.south = std::min(bounds.south, position.latitude);
    bounds.north = std::max(bounds.north, position.latitude);
  }
  return bounds;
}

std::vector<RegionBounds> boundsAround(Coordinate center, double radiusMetres) {
  const double height = radiusMetres / kMetresPerDegree;
  const double south = std::max(-90.0, center.latitude - height);
  const double north = std::min(90.0, center.latitude + height);
  const double narrowest = std::cos(std::max(std::abs(south), std::abs(north)) * kRadians);
  const double width = narrowest * 180 > height ? height / narrowest : 180;
  if (width >= 180) return {{-180, south, 180, north}};
  const double longitude = wrapLongitude(center.longitude);
  const double west = longitude - width;
  const double east = longitude + width;
  if (west < -180) return {{-180, south, east, north}, {west + 360, south, 180, north}};
  if (east > 180) return {{west, south, 180, north}, {-180, south, east - 360, north}};
  return {{west, south, east, north}};
}

}  // namespace wayloom
