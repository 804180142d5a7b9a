#pragma once

#include <string>
#include <string_view>

#include "tracks/Waypoint.h"

namespace wayloom {

/// The waypoints (wpt) of a GPX document of any version. Its tracks and routes are passed over.
Result<Waypoints> readGpx(std::string_view bytes);

/// A document that holds the waypoints; names as writableName gives them.
std::string writeGpx(const Waypoints& waypoints);

}  // namespace wayloom
