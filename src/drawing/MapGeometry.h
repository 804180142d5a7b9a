#pragma once

#include <vector>

#include "regions/DrawingShape.h"

namespace wayloom {

/// One polygon: its rings, the first encloses it.
using MapPolygon = std::vector<MapPath>;

/// The width of one pixel, in metres of EPSG:3857, of 512-pixel tiles at a zoom.
double metresPerPixel(int zoom);

/// The area a ring encloses; negative when it runs clockwise.
double signedArea(const MapPath& ring);

double lengthOf(const MapPath& path);

/// The path without the points that lie within `tolerance` metres of what remains. The ends stay.
MapPath simplified(const MapPath& path, double tolerance);

/// The path with its corners cut `times` times; a closed path stays closed.
MapPath smoothed(const MapPath& path, int times);

/// The polygon's part within the box. Rings may run along the box's edge back and forth, which
/// encloses nothing.
MapPolygon clipped(const MapPolygon& polygon, const MapBox& box);

/// Cuts polygons along a grid of halved boxes until each piece has at most about `mostPoints`
/// points. Each piece reaches `overlap` metres over its box, so that no seam shows between
/// neighbours filled alike.
std::vector<MapPolygon> cutToPieces(std::vector<MapPolygon> polygons, const MapBox& box,
                                    std::size_t mostPoints, double overlap);

/// The path in pieces of at most `mostPoints` points, each beginning where the one before ends.
std::vector<MapPath> cutToPieces(const MapPath& path, std::size_t mostPoints);

/// A point well inside the polygon where a level label has room.
MapPoint labelPoint(const MapPolygon& polygon);

}  // namespace wayloom
