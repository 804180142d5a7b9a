#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "geo/Coordinate.h"
#include "geo/GroundDistance.h"
#include "regions/RegionFile.h"

namespace wayloom {

/// A chain of positions; as the ring of an area its last and first position are joined.
using Line = std::vector<Coordinate>;

/// A spot on a line and how far away it is.
struct NearestSpot {
  double metres = 0;
  Coordinate coordinate;
  /// The number of the line's last position that does not lie beyond the spot.
  std::size_t position = 0;
};

/// The spot of a line that is nearest to a position, exact to within a percent up to 10 km.
/// The line has at least one position and may cross the antimeridian.
NearestSpot nearestSpot(Coordinate from, std::span<const Coordinate> line);

/// Whether the rings together (the first the outline, the others holes) enclose a position. Rings
/// have no jump at the antimeridian but go on beyond it.
bool encloses(std::span<const Line> rings, Coordinate position);

/// The smallest bounds that hold every position; there is at least one.
RegionBounds boundsOf(std::span<const Coordinate> positions);

/// Bounds that together hold everything within a radius of a position: one, or two when the
/// antimeridian is near.
std::vector<RegionBounds> boundsAround(Coordinate center, double radiusMetres);

}  // namespace wayloom
