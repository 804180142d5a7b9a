#pragma once

#include <vector>

#include "TopoJson.h"
#include "drawing/MapGeometry.h"

namespace wayloom {

/// The areas of a topology as polygons of the flat map. An outline that crosses the antimeridian
/// appears on both sides of it, partly outside the map; one around a pole is led along the map's
/// edge.
std::vector<MapPolygon> mapPolygons(const Topology& topology, const Topology::Area& area);

/// The topology with its arcs simplified to within `tolerance` metres of EPSG:3857. What shares an
/// arc still does.
Topology simplified(Topology topology, double tolerance);

/// The topology with the corners of its arcs rounded; their ends stay where arcs meet.
Topology smoothed(Topology topology);

enum class ArcUse { kCoast, kBorder };

/// The arcs that bound one area only (coast) or lie between two (borders), without the seams that
/// the antimeridian and the map's edge leave in the data.
std::vector<MapPath> mapLines(const Topology& topology, ArcUse use);

}  // namespace wayloom
