#pragma once

#include "geo/Coordinate.h"

namespace wayloom {

/// The mean radius of the sphere along which distances are measured.
inline constexpr double kEarthRadiusMetres = 6371008.8;

/// The distance along the ground of that sphere.
double distanceMetres(Coordinate from, Coordinate to);

}  // namespace wayloom
