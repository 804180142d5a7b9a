#pragma once

#include <optional>

#include "map/RegionTables.h"
#include "regions/RegionStore.h"

namespace wayloom {

/// One region's tables, opened when a tile first needs them. Shared by the layers of one drawer.
class LazyTables {
 public:
  explicit LazyTables(const Region& region) : mRegion(region) {}

  const RegionBounds& bounds() const { return mRegion.info.bounds; }

  RegionTables* tables() {
    if (!mWasOpened) {
      mWasOpened = true;
      if (auto database = openRegion(mRegion.path)) mTables.emplace(std::move(*database));
    }
    return mTables ? &*mTables : nullptr;
  }

 private:
  const Region& mRegion;
  bool mWasOpened = false;
  std::optional<RegionTables> mTables;
};

}  // namespace wayloom
