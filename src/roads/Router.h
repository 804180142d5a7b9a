#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "geo/Route.h"
#include "regions/RegionStore.h"
#include "roads/RouterSearch.h"

namespace wayloom {

/// Plans drives on the roads of the installed regions. A region's roads are read when a drive first
/// needs them and stay in memory. One thread at a time; owned by who asks.
class Router {
 public:
  explicit Router(const RegionStore& store);
  ~Router();

  /// The quickest drive first, then up to `alternates` others that differ from it and take little
  /// longer. A drive stays within one region, unless two that share nodes come nearer to where it
  /// is to start and end. What holds at certain hours only is judged by the start; where that is
  /// not known, all of it holds. The failure says why there is none.
  Result<std::vector<Route>> plan(Coordinate from, Coordinate to, int alternates = 0,
                                  const std::optional<RoadTime>& start = {});

 private:
  /// A graph and what searches it.
  struct Roads {
    explicit Roads(RoadNetwork network) : graph(std::move(network)), search(graph) {}
    const RoadGraph graph;
    RouterSearch search;
  };
  struct RegionRoads {
    Region region;
    bool isRead = false;
    /// None when the region has no roads or they are damaged.
    std::unique_ptr<Roads> roads;
    /// What is wrong with the roads.
    std::string fault;
  };
  struct Question;

  static void read(RegionRoads& roads);
  void askEach(Question& question);
  void askPairs(Question& question);
  static double metresToRoad(const RegionRoads& region, Coordinate position);
  /// None where the two share no node.
  Roads* joined(std::size_t a, std::size_t b);

  std::vector<RegionRoads> mRegions;
  std::map<std::pair<std::size_t, std::size_t>, std::unique_ptr<Roads>> mJoined;
};

}  // namespace wayloom
