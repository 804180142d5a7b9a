#include "map/TileGrid.h"

#include <algorithm>
#include <cmath>

namespace wayloom {

namespace {

/// The edges of the columns (or rows) of tiles that a view shows.
struct Edges {
  long first = 0;
  long count = 0;
  double originPixels = 0;
  double tilePixels = 0;
  double scale = 1;

  Edges(double center, double viewPoints, double tilePoints, double tiles, double pixelRatio)
      : scale(pixelRatio) {
    const double start = center * tiles - viewPoints / 2 / tilePoints;
    const double end = center * tiles + viewPoints / 2 / tilePoints;
    first = std::lround(std::floor(start));
    count = std::lround(std::ceil(end)) - first;
    // One rounded origin, and steps rounded from it: neighbours share an edge and keep their size
    // while the map is panned.
    tilePixels = tilePoints * scale;
    originPixels = std::round((static_cast<double>(first) - start) * tilePixels);
  }

  double at(long index) const {
    return (originPixels + std::round(static_cast<double>(index) * tilePixels)) / scale;
  }
};

}  // namespace

int tileZoom(const MapCamera& camera, int maximumZoom) {
  return std::clamp(static_cast<int>(std::lround(camera.zoom())), 0,
                    std::clamp(maximumZoom, 0, 30));
}

std::vector<PlacedTile> visibleTiles(const MapCamera& camera, int zoom, double scale) {
  if (!camera.hasSize()) return {};
  const long world = 1L << zoom;
  const double points = camera.worldSize() / static_cast<double>(world);
  const WorldPoint center = camera.center();
  const QSizeF size = camera.size();
  const auto tiles = static_cast<double>(world);
  const Edges columns(center.x, size.width(), points, tiles, scale);
  const Edges rows(center.y, size.height(), points, tiles, scale);
  std::vector<PlacedTile> placed;
  for (long row = 0; row < rows.count; ++row) {
    const long y = rows.first + row;
    if (y < 0 || y >= world) continue;
    for (long column = 0; column < columns.count; ++column) {
      const long x = ((columns.first + column) % world + world) % world;
      placed.push_back({{zoom, static_cast<int>(x), static_cast<int>(y)},
                        QRectF(QPointF(columns.at(column), rows.at(row)),
                               QPointF(columns.at(column + 1), rows.at(row + 1)))});
    }
  }
  const QPointF middle(size.width() / 2, size.height() / 2);
  const auto distance = [&](const PlacedTile& tile) {
    const QPointF away = tile.rect.center() - middle;
    return std::hypot(away.x(), away.y());
  };
  std::stable_sort(placed.begin(), placed.end(), [&](const PlacedTile& a, const PlacedTile& b) {
    return distance(a) < distance(b);
  });
  return placed;
}

TileKey ancestorOf(const TileKey& tile, int levels) {
  return {tile.zoom - levels, tile.x >> levels, tile.y >> levels};
}

QRectF partOfAncestor(const TileKey& tile, int levels) {
  const int across = 1 << levels;
  const double part = 1.0 / across;
  return {(tile.x & (across - 1)) * part, (tile.y & (across - 1)) * part, part, part};
}

}  // namespace wayloom
