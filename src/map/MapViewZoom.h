#pragma once

#include <cstdint>

#include "map/MapView.h"

namespace wayloom {

/// What `mapView`, at its present size, shows around `center` at `zoomLevel` (see MapZoom.h).
CoordinateSpan coordinateSpanWithMapView(const MapView& mapView, Coordinate center,
                                         std::uint64_t zoomLevel);

/// Moves the map to `center` at `zoomLevel`; levels above 28 count as 28. The map itself may limit
/// the zoom further.
void setCenterCoordinate(MapView& mapView, Coordinate center, std::uint64_t zoomLevel,
                         Animated animated);

}  // namespace wayloom
