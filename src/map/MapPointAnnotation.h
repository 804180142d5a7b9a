#pragma once

#include <cstdint>

#include <QtCore/QPointF>
#include <QtGui/QImage>

#include "geo/Coordinate.h"

namespace wayloom {

/// A mark on the map. Shared and never changed once made; the map knows it by its address.
struct MapPointAnnotation {
  Coordinate coordinate;
  /// Tells marks apart; 0 for one that was never tagged.
  std::int32_t tag = 0;
  /// Its device pixel ratio counts. Null for the map's own pin.
  QImage image;
  /// Which place of the image stands on the coordinate, in parts of its size.
  QPointF anchor{0.5, 1};

  /// Keeps the lowest 32 bits.
  void setTag(std::int64_t value) { tag = static_cast<std::int32_t>(value); }
};

}  // namespace wayloom
