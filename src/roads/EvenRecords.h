#pragma once

#include "geo/Route.h"

namespace wayloom {

/// The most records that a drive is given.
inline constexpr std::size_t kMostRecords = 20000;
/// No straight between two records is further than this from the road, unless the drive takes more
/// than eleven hours.
inline constexpr double kMostOffRoadMetres = 2;

/// Plays the drive along the geometry of a route: its polyline becomes the positions after each
/// quarter of a second (half, whole or two seconds on long drives), all of them on the geometry;
/// its passages and expected seconds tell how it goes. Needs geometry, limits and stops.
void spaceEvenly(Route& route);

}  // namespace wayloom
