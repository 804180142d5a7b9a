#pragma once

#include <memory>
#include <mutex>
#include <vector>

#include "map/TileSource.h"
#include "regions/RegionStore.h"

namespace wayloom {

/// Draws tiles from region files. Each worker thread in turn borrows a drawer of its own, made when
/// it is first needed, for a style with open files serves one thread only. A region that cannot be
/// read is left out; the others are drawn.
class MapnikTileSource final : public TileSource {
 public:
  explicit MapnikTileSource(std::vector<Region> regions);
  ~MapnikTileSource() override;

  QImage draw(const TileKey& key, double scale) override;
  int concurrency() const override;
  int maximumZoom() const override;
  QStringList attributions(double west, double south, double east, double north) const override;

 private:
  class Drawer;

  std::unique_ptr<Drawer> borrowDrawer();

  const std::vector<Region> mRegions;
  std::mutex mMutex;
  std::vector<std::unique_ptr<Drawer>> mIdleDrawers;
};

}  // namespace wayloom
