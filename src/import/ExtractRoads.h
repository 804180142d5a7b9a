#pragma once

#include <vector>

#include "import/Extract.h"
#include "regions/Database.h"
#include "roads/RoadGraphBuilder.h"

namespace wayloom {

/// The roads of an extract that cars may use, with what is forbidden on them. Collects first and
/// then writes the road network. Used by one thread.
class ExtractRoads {
 public:
  void addPoint(const OsmTags& tags, const ExtractNode& node);
  void addLine(std::int64_t way, const OsmTags& tags, const std::vector<ExtractNode>& nodes);
  void addRestriction(RoadRestriction restriction) {
    mRules.restrictions.push_back(std::move(restriction));
  }
  /// On which side one drives where a way does not say it.
  void keepLeft(bool keepsLeft);

  std::size_t count() const { return mWays.size(); }
  const std::vector<RoadWay>& ways() const { return mWays; }
  const RoadRules& rules() const { return mRules; }

  /// What did not fit is added to `faults`.
  Status write(Database& database, RoadFaults& faults) const;

 private:
  std::vector<RoadWay> mWays;
  /// The numbers of those among mWays that say on which side one drives.
  std::vector<std::size_t> mSided;
  RoadRules mRules;
};

/// Whether one drives on the left in a country, by its name in English.
bool drivesOnTheLeft(std::string_view country);

}  // namespace wayloom
