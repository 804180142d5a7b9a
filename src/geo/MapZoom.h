#pragma once

#include <cstdint>

#include "geo/Coordinate.h"
#include "geo/MapRegion.h"

namespace wayloom {

// Zoom levels on a square Mercator grid whose world is 2^29 pixels wide. At level 20 one grid pixel
// is one point of the screen, and each level below doubles the grid pixels in a point. Longitudes
// and latitudes are degrees. Pure arithmetic: a value that is not a number gives none, the poles
// lie infinitely far away on the grid, and every zoom level is taken.

/// Whole grid pixels, halves away from zero.
double longitudeToPixelSpaceX(double longitude);
/// As above. Sine and logarithm have single precision, which puts 58 degrees ten pixels off.
double latitudeToPixelSpaceY(double latitude);
double pixelSpaceXToLongitude(double pixelX);
double pixelSpaceYToLatitude(double pixelY);

/// What a view of this size, in points, shows around `center` at `zoomLevel`. Levels above 20 take
/// parts of a grid pixel for a point.
CoordinateSpan coordinateSpan(Coordinate center, std::uint64_t zoomLevel, double width,
                              double height);

}  // namespace wayloom
