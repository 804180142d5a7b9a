#pragma once

#include <memory>
#include <vector>

#include <QtGui/QColor>

#include "geo/Coordinate.h"

namespace wayloom {

/// A line over the map, through its coordinates in order, each step the shorter way round the
/// world. Shared and never changed once made; the map knows it by its address. The colour is drawn
/// opaque.
struct MapPolyline {
  std::shared_ptr<const std::vector<Coordinate>> coordinates;
  double lineWidthPoints = 2.5;
  QColor color = QColor::fromRgbF(0, 1, 0);
};

}  // namespace wayloom
