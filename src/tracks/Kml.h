#pragma once

#include <string>
#include <string_view>

#include "tracks/Waypoint.h"

namespace wayloom {

/// The placemarks of a KML document, in all its folders. What is no point is passed over; of many
/// points the first counts.
Result<Waypoints> readKml(std::string_view bytes);

/// A document that holds the waypoints; names as writableName gives them.
std::string writeKml(const Waypoints& waypoints);

}  // namespace wayloom
