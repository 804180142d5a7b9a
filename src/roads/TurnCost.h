#pragma once

#include <algorithm>

namespace wayloom {

// What turning costs, in seconds. These are our reckoning, not a survey.

/// Slowing from 50 km/h to 20 km/h for a right angle and speeding up again, both with 2 m/s², takes
/// (v - c)² / (v a) = 2.5 s longer than going on; straight on costs nothing, and a sharper turn up
/// to twice as much.
inline constexpr double kRightAngleSeconds = 2.5;
/// The mean wait for a gap of 6 s in oncoming traffic of 300 cars an hour that come by chance (a
/// Poisson process with q = 1/12 s: (e^{6q} - 1 - 6q) / q = 1.8 s), for who turns across it.
inline constexpr double kOncomingSeconds = 1.8;
/// The mean wait at signals that stop traffic for half of every minute: half the red time, half of
/// the time.
inline constexpr double kSignalSeconds = 7.5;
/// Turning round where a road ends, or on a road: three moves of 5 s and letting others by. That is
/// more than any turn takes, so it gains nothing but where a rule forbids turns; searches rely on
/// it.
inline constexpr double kTurnRoundSeconds = 20;
/// Nobody turns round nearer than that to a crossing, or at the middle of a shorter road.
inline constexpr double kTurnOnRoadMetres = 20;

/// A direction on the ground, east and north, of length 1; of length 0 where there is none.
struct Heading {
  float east = 0;
  float north = 0;
};

/// What the angle costs where three or more roads meet.
inline double turnSeconds(Heading from, Heading to, bool keepsLeft) {
  const float cosine = from.east * to.east + from.north * to.north;
  const float toLeft = from.east * to.north - from.north * to.east;
  const float across = std::max(0.0F, keepsLeft ? -toLeft : toLeft);
  return kRightAngleSeconds * static_cast<double>(1 - cosine) +
         kOncomingSeconds * static_cast<double>(across);
}

}  // namespace wayloom
