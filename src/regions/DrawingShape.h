#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "geo/Coordinate.h"

namespace wayloom {

/// A point of the map in the metres of EPSG:3857: x runs east, y north, both from (0°, 0°).
struct MapPoint {
  double x = 0;
  double y = 0;

  bool operator==(const MapPoint&) const = default;
};

using MapPath = std::vector<MapPoint>;

MapPoint mapPoint(Coordinate coordinate);
Coordinate coordinateAt(MapPoint point);

struct MapBox {
  double xmin = 0;
  double ymin = 0;
  double xmax = 0;
  double ymax = 0;

  bool operator==(const MapBox&) const = default;
};

/// What one row of a drawing table draws. A point has one path of one point, a line one path, a
/// polygon its rings: the first encloses it, the others are holes; each ring repeats its first
/// point at its end.
struct DrawingShape {
  /// The numbers stand in region files.
  enum class Kind { kPoint = 1, kLine = 2, kPolygon = 3 };

  Kind kind = Kind::kPoint;
  std::vector<MapPath> paths;

  bool operator==(const DrawingShape&) const = default;
};

/// The box around all points; all zero for a shape without points.
MapBox boundsOf(const DrawingShape& shape);

/// The bytes of a shape in a region file, as docs/region-file.md has them; positions to a tenth of
/// a metre, which must be within a million kilometres.
std::string encodeShape(const DrawingShape& shape);

/// Reads them. Nothing for anything but a complete point, line or polygon near the world: the bytes
/// come from a file and may be damaged.
std::optional<DrawingShape> decodeShape(std::string_view bytes);

}  // namespace wayloom
