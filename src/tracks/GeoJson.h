#pragma once

#include <string>
#include <string_view>

#include "tracks/Waypoint.h"

namespace wayloom {

/// The points of a GeoJSON document: a feature, a collection of them, or one bare point. Other
/// geometries are passed over.
Result<Waypoints> readGeoJson(std::string_view bytes);

/// A document that holds the waypoints; names as writableName gives them.
std::string writeGeoJson(const Waypoints& waypoints);

}  // namespace wayloom
