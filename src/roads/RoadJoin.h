#pragma once

#include <optional>

#include "roads/RoadNetwork.h"

namespace wayloom {

/// The roads of two networks as one, joined where junctions stand for the same node. A road that
/// both hold is there once, cut where either has a junction on it, and rules hold for all of it.
/// Nothing when they share no node.
std::optional<RoadNetwork> joinedRoads(const RoadNetwork& a, const RoadNetwork& b);

}  // namespace wayloom
