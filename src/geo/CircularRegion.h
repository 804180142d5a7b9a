#pragma once

#include "geo/Coordinate.h"

namespace wayloom {

/// Everything within `radiusMetres` of `center`.
struct CircularRegion {
  Coordinate center;
  double radiusMetres = 0;
};

}  // namespace wayloom
