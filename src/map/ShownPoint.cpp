#include "map/ShownPoint.h"

#include <chrono>

#include <QtCore/QPointer>

#include "ui/MapRegion.h"

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

void moveToPoint(MapView& map, Coordinate point) {
  const MapRegion region = fittedRegion(map, point);
  map.animateCenter(point, kMoveDuration, [map = QPointer(&map), region] {
    if (map) map->setRegion(region, Animated::Yes);
  });
}

}  // namespace wayloom
