#pragma once

#include "fuzz/Fuzzing.h"
#include "import/RegionImport.h"
#include "regions/PlaceIndex.h"
#include "roads/Router.h"

namespace wayloom {

/// Imports an extract of these bytes: there is a region afterwards that can be used, or nothing,
/// and a line that says why.
inline void checkImport(const std::string& name, std::string_view bytes) {
  static const MemoryFolder folder;
  static const MemoryFolder regions;
  writeFile(folder.path() / name, bytes);
  const auto goOn = [](std::string_view, double) { return true; };
  const auto region =
      importRegion(folder.path() / name, regions.path(), "a", RegionStore({}), goOn);
  if (!region) {
    require(!region.message().empty());
    require(std::filesystem::is_empty(regions.path()));
    return;
  }
  const RegionStore store({regions.path()});
  require(store.regions().size() == 1 && isValid(store.regions().front().info.bounds));
  auto index = PlaceIndex::open(store);
  require(bool(index));
  const RegionBounds& bounds = region->info.bounds;
  (void)index->placeAt({bounds.south, bounds.west});
  (void)index->search("a", std::nullopt);
  (void)Router(store).plan({bounds.south, bounds.west}, {bounds.north, bounds.east});
  std::filesystem::remove(region->path);
}

}  // namespace wayloom
