#pragma once

#include "regions/Database.h"
#include "roads/RoadNetwork.h"

namespace wayloom {

/// Makes the tables of a road network and fills them.
Status writeRoads(Database& database, const RoadNetwork& network);

/// Reads the road network of a region; an empty one when the region has none. What comes back
/// without a failure is sound: every number leads to something, every position is on the globe, no
/// more than kMostRoadsAtAJunction meet anywhere, and the arcs of every rule follow each other.
Result<RoadNetwork> readRoads(Database& database);

}  // namespace wayloom
