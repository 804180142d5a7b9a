#pragma once

#include <memory>
#include <vector>

#include <QtGui/QPolygonF>

#include "map/MapCamera.h"
#include "map/MapPolyline.h"

namespace wayloom {

/// A polyline brought onto the world map once, and onto the view as often as that moves.
class PolylinePath {
 public:
  explicit PolylinePath(const std::vector<Coordinate>& coordinates);

  /// The parts of the line that touch the view, in view points, each at least two points long.
  /// Points that could not be told from the line without them are left out, more generously the
  /// more there are, and a line that is nothing but noise is cut short: the work of painting is
  /// bounded however long the line.
  std::vector<QPolygonF> inView(const MapCamera& camera, double marginPoints) const;

 private:
  std::vector<WorldPoint> mPoints;  // x runs on past [0, 1) where the line crosses the date line.
  double mWest = 0;
  double mEast = 0;
};

}  // namespace wayloom
