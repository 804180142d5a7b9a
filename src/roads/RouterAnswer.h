#pragma once

#include <optional>
#include <vector>

#include "geo/Route.h"
#include "roads/RouterSearch.h"
#include "settings/Result.h"

namespace wayloom {

/// How far from a road a place may lie to be driven from or to.
inline constexpr double kFarthestRoadMetres = 1000;

/// The quickest drive on the roads of one graph that starts at this time, and up to `alternates`
/// others that differ from it and take little longer. Both ends move to the nearest roads between
/// which a way leads. A failure says which end no road is near, or that no way leads.
Result<std::vector<Route>> routesOn(RouterSearch& search, Coordinate from, Coordinate to,
                                    int alternates, const std::optional<RoadTime>& time = {});

}  // namespace wayloom
