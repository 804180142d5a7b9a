#pragma once

#include <optional>
#include <string>
#include <vector>

#include "geo/Route.h"
#include "regions/RegionStore.h"
#include "roads/RoadGraph.h"

namespace wayloom {

/// Plans drives on the roads of the installed regions. A region's roads are read when a drive first
/// needs them and stay in memory. One thread at a time; owned by who asks.
class Router {
 public:
  explicit Router(const RegionStore& store);

  /// The quickest drive first, then up to `alternates` others that differ from it and take little
  /// longer. A drive stays within one region. The failure says why there is none.
  Result<std::vector<Route>> plan(Coordinate from, Coordinate to, int alternates = 0);

 private:
  struct RegionRoads {
    Region region;
    bool isRead = false;
    /// None when the region has no roads or they are damaged.
    std::optional<RoadGraph> graph;
    /// What is wrong with the roads.
    std::string fault;
  };

  static void read(RegionRoads& roads);

  std::vector<RegionRoads> mRegions;
};

}  // namespace wayloom
