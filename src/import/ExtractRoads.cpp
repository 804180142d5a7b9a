#include "import/ExtractRoads.h"

#include "roads/CarAccess.h"

namespace wayloom {

void ExtractRoads::addPoint(const OsmTags& tags, Coordinate position) {
  if (stopsCars(tags)) mBarriers.push_back(position);
}

void ExtractRoads::addLine(std::int64_t way, const OsmTags& tags, const Line& line) {
  auto use = carUse(tags);
  if (!use) {
    double metres = 0;
    for (std::size_t at = 1; at < line.size(); ++at)
      metres += distanceMetres(line[at - 1], line[at]);
    use = ferryUse(tags, metres);
  }
  if (!use) return;
  mNumbers.emplace(way, mWays.size());
  mWays.push_back({line, *use});
}

Status ExtractRoads::write(Database& database) const {
  RoadRules rules{{}, mBarriers};
  for (const ExtractTurn& turn : mTurns) {
    const auto from = mNumbers.find(turn.fromWay);
    const auto to = mNumbers.find(turn.toWay);
    // A turn into a road that no car may use is no turn for cars.
    if (from == mNumbers.end() || to == mNumbers.end()) continue;
    rules.turns.push_back({from->second, to->second, turn.via, turn.isOnly});
  }
  return writeRoads(database, roadNetwork(mWays, rules));
}

}  // namespace wayloom
