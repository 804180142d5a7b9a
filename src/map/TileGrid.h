#pragma once

#include <vector>

#include <QtCore/QRectF>

#include "map/MapCamera.h"
#include "map/TileSource.h"

namespace wayloom {

/// A tile and where it is in the view, on whole device pixels.
struct PlacedTile {
  TileKey key;
  QRectF rect;
};

/// The tile zoom nearest to the camera's zoom, at most `maximumZoom`.
int tileZoom(const MapCamera& camera, int maximumZoom);

/// The tiles of a zoom that are in view, nearest to the centre first. Neighbours touch, and at a
/// whole zoom each is exactly its size, so that its pixels are shown as drawn.
std::vector<PlacedTile> visibleTiles(const MapCamera& camera, int zoom, double scale);

/// The tile `levels` above; levels is at most the tile's zoom.
TileKey ancestorOf(const TileKey& tile, int levels);
/// The part of that ancestor that the tile is, in parts of its size.
QRectF partOfAncestor(const TileKey& tile, int levels);

}  // namespace wayloom
