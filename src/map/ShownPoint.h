#pragma once

#include "map/MapView.h"

namespace wayloom {

/// Shows the 2000 by 2000 metres around `point` at once, with it in the middle.
void showPoint(MapView& map, Coordinate point);

/// Whether the map stands as near to `point` as it can without standing there: it ends at 85
/// degrees.
bool isBeyondTheEdge(const MapView& map, Coordinate point);

/// Moves to `point` within half a second, and then shows the 2000 by 2000 metres around it,
/// animated.
void moveToPoint(MapView& map, Coordinate point);

}  // namespace wayloom
