#include "map/MapViewZoom.h"

#include <algorithm>

#include "geo/MapZoom.h"

namespace wayloom {

CoordinateSpan coordinateSpanWithMapView(const MapView& mapView, Coordinate center,
                                         std::uint64_t zoomLevel) {
  return coordinateSpan(center, zoomLevel, mapView.width(), mapView.height());
}

void setCenterCoordinate(MapView& mapView, Coordinate center, std::uint64_t zoomLevel,
                         Animated animated) {
  constexpr std::uint64_t kHighestLevel = 28;
  const std::uint64_t level = std::min(zoomLevel, kHighestLevel);
  mapView.setRegion({center, coordinateSpanWithMapView(mapView, center, level)}, animated);
}

}  // namespace wayloom
