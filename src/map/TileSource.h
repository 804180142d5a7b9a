#pragma once

#include <compare>

#include <QtCore/QStringList>
#include <QtGui/QImage>

namespace wayloom {

/// One tile of the web-Mercator pyramid: 512 logical pixels square; at zoom z the world is 2^z
/// tiles wide.
struct TileKey {
  int zoom = 0;
  int x = 0;
  int y = 0;

  auto operator<=>(const TileKey&) const = default;
};

/// Where a map's tiles come from. Shared by the map and its worker threads; each function may be
/// called on any thread, also at the same time.
class TileSource {
 public:
  virtual ~TileSource() = default;

  /// Draws a tile; `scale` is the device pixel ratio, so the image is 512 * scale pixels square
  /// (Format_RGB32 or Format_ARGB32_Premultiplied). Called on worker threads, at most
  /// concurrency() at a time. A null image means that there is no such tile.
  virtual QImage draw(const TileKey& key, double scale) = 0;
  virtual int concurrency() const = 0;

  /// The largest zoom with detail of its own.
  virtual int maximumZoom() const = 0;

  /// Who must be credited for what the given bounds (degrees) show.
  virtual QStringList attributions(double west, double south, double east, double north) const = 0;
};

}  // namespace wayloom
