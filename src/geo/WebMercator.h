#pragma once

#include <numbers>

#include "geo/Coordinate.h"

namespace wayloom {

/// A point of the square world map: x runs east from 0 at longitude -180 to 1 at +180, y runs south
/// from 0 at kMercatorLatitudeLimit to 1 at its negative (spherical Mercator, EPSG:3857).
struct WorldPoint {
  double x = 0;
  double y = 0;

  bool operator==(const WorldPoint&) const = default;
};

/// The latitude, in degrees, at which the world map is square: atan(sinh(pi)).
inline constexpr double kMercatorLatitudeLimit = 85.05112877980659;

/// Half the width of the world in the metres of EPSG:3857 (pi times the radius 6378137 m).
inline constexpr double kMercatorHalfWorldMetres = std::numbers::pi * 6378137.0;

/// The world point of a coordinate. Latitudes beyond the limit are brought to it; longitudes are
/// taken as they are, so 190 gives an x above 1.
WorldPoint worldPoint(Coordinate coordinate);

/// The inverse of worldPoint, exact to within a few units in the last place.
Coordinate coordinateAt(WorldPoint point);

/// The longitude brought into [-180, 180).
double wrapLongitude(double longitude);

}  // namespace wayloom
