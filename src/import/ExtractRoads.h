#pragma once

#include <map>
#include <vector>

#include "import/Extract.h"
#include "regions/Database.h"
#include "roads/RoadGraphBuilder.h"

namespace wayloom {

/// The roads of an extract that cars may use, with what is forbidden on them. Collects first and
/// then writes the road network. Used by one thread.
class ExtractRoads {
 public:
  void addPoint(const OsmTags& tags, Coordinate position);
  void addLine(std::int64_t way, const OsmTags& tags, const Line& line);
  void addTurn(const ExtractTurn& turn) { mTurns.push_back(turn); }

  std::size_t count() const { return mWays.size(); }

  Status write(Database& database) const;

 private:
  std::vector<RoadWay> mWays;
  /// The number of each way among mWays.
  std::map<std::int64_t, std::size_t> mNumbers;
  std::vector<Coordinate> mBarriers;
  std::vector<ExtractTurn> mTurns;
};

}  // namespace wayloom
