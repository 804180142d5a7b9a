#pragma once

#include "geo/Coordinate.h"

namespace wayloom {

/// The extent of a region, in degrees.
struct CoordinateSpan {
  double latitudeDelta = 0;
  double longitudeDelta = 0;

  bool operator==(const CoordinateSpan&) const = default;
};

/// What a map shows: a centre and how much lies around it.
struct MapRegion {
  Coordinate center;
  CoordinateSpan span;

  bool operator==(const MapRegion&) const = default;
};

/// The region around `center` that measures `latitudinalMetres` from north to south and
/// `longitudinalMetres` from west to east, on a sphere of the mean radius 6371008.8 m
/// (IUGG, R1). Near the poles the longitude span is limited to 360 degrees.
MapRegion regionWithDistance(Coordinate center, double latitudinalMetres,
                             double longitudinalMetres);

/// The smallest region that holds both places, without a margin; not across the 180th meridian.
MapRegion regionBetween(Coordinate one, Coordinate other);

}  // namespace wayloom
