#pragma once

#include <vector>

#include "geo/Route.h"

namespace wayloom {

/// How a car gains speed and loses it, in m/s². Everyday driving; hard braking is 4 and more.
inline constexpr double kAcceleration = 1.2;
inline constexpr double kBraking = 1.8;
/// What people bear sideways in a bend, in m/s²: AASHTO's Green Book asks for 0.3 g at 30 km/h,
/// and less at higher speeds.
inline constexpr double kSideways = 2.5;

/// How fast each position of a line may be passed in view of its bends, in m/s; infinite where it
/// goes straight on.
std::vector<double> bendSpeeds(const std::vector<Coordinate>& line);

/// When each position of a route's geometry is passed: from standstill to standstill, within the
/// limits of its stretches, the waits of its stops, and what `caps` allows at each position.
std::vector<RoutePassage> passagesOf(const Route& route, const std::vector<double>& caps);

/// Where the drive is within the stretch between two passages: the metres driven on it, so many
/// seconds after leaving the first one.
double metresInto(const RoutePassage& from, const RoutePassage& to, double limit, double seconds);

}  // namespace wayloom
