#include "map/ShownPoint.h"

#include <chrono>
#include <cmath>

#include <QtCore/QPointer>

#include "geo/MapRegion.h"

namespace wayloom {

namespace {

constexpr double kShownMetres = 2000;
constexpr std::chrono::milliseconds kMoveDuration{500};

MapRegion fittedRegion(const MapView& map, Coordinate point) {
  return map.regionThatFits(regionWithDistance(point, kShownMetres, kShownMetres));
}

}  // namespace

void showPoint(MapView& map, Coordinate point) {
  map.setRegion(fittedRegion(map, point), Animated::No);
  map.setCenterCoordinate(point, Animated::No);
}

bool isBeyondTheEdge(const MapView& map, Coordinate point) {
  constexpr double kSameDegrees = 1e-9;
  const Coordinate center = map.region().center;
  const double turns = (center.longitude - point.longitude) / 360;
  return std::abs(point.latitude) > kMercatorLatitudeLimit &&
         std::abs(std::copysign(kMercatorLatitudeLimit, point.latitude) - center.latitude) <
             kSameDegrees &&
         std::abs(turns - std::round(turns)) * 360 < kSameDegrees;
}

void moveToPoint(MapView& map, Coordinate point) {
  // Fitted at the end: a screen that has just been made finds its size on the way.
  map.animateCenter(point, kMoveDuration, [map = QPointer(&map), point] {
    if (map) map->setRegion(fittedRegion(*map, point), Animated::Yes);
  });
}

}  // namespace wayloom
