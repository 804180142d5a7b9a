#include "roads/DrivenSpeeds.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "regions/GroundGeometry.h"

namespace wayloom {

namespace {

constexpr double kAnySpeed = std::numeric_limits<double>::infinity();
// Nearer bends are one: the data are no finer.
constexpr double kOneBendMetres = 3;
// How far within a corner its curve may run: half the width of a street.
constexpr double kCornerMetres = 3;
// As slow as one drives round the sharpest corner.
constexpr double kSlowest = 1.5;

// The way from one position to the next on the ground, in metres east and north.
struct Stride {
  double east = 0;
  double north = 0;

  double metres() const { return std::hypot(east, north); }
};

Stride strideFrom(Coordinate from, Coordinate to) {
  constexpr double kDegreeMetres = 6371008.8 * std::numbers::pi / 180;
  const double degrees = std::remainder(to.longitude - from.longitude, 360.0);
  const double parallel = std::cos(from.latitude * std::numbers::pi / 180);
  return {degrees * kDegreeMetres * parallel, (to.latitude - from.latitude) * kDegreeMetres};
}

double angleBetween(const Stride& before, const Stride& behind) {
  return std::atan2(before.east * behind.north - before.north * behind.east,
                    before.east * behind.east + before.north * behind.north);
}

// A curve that touches both stretches, no longer than half the shorter one, and cuts the corner
// as far as a street is wide.
double speedRound(double angle, double shorterMetres) {
  const double half = std::min(std::abs(angle), std::numbers::pi) / 2;
  if (half < 1e-3) return kAnySpeed;
  const double fitting = shorterMetres / 2 / std::tan(half);
  const double cutting = kCornerMetres / (1 / std::cos(half) - 1);
  return std::max(kSlowest, std::sqrt(kSideways * std::max(0.0, std::min(fitting, cutting))));
}

// The speed in the middle of a stretch where one gains speed first and loses it then.
double peakSpeed(double from, double to, double limit, double metres) {
  const double square =
      (2 * kAcceleration * kBraking * metres + kBraking * from * from + kAcceleration * to * to) /
      (kAcceleration + kBraking);
  return std::min(limit, std::sqrt(square));
}

double secondsFor(double from, double to, double limit, double metres) {
  const double peak = peakSpeed(from, to, limit, metres);
  if (!(peak > 0)) return 0;
  const double speedingUp = (peak * peak - from * from) / (2 * kAcceleration);
  const double slowingDown = (peak * peak - to * to) / (2 * kBraking);
  return (peak - from) / kAcceleration + (peak - to) / kBraking +
         std::max(0.0, metres - speedingUp - slowingDown) / peak;
}

}  // namespace

std::vector<double> bendSpeeds(const std::vector<Coordinate>& line) {
  std::vector<double> speeds(line.size(), kAnySpeed);
  std::size_t first = 1;
  while (first + 1 < line.size()) {
    std::size_t last = first;
    double within = 0;
    double angle = 0;
    const Stride before = strideFrom(line[first - 1], line[first]);
    Stride behind = before;
    for (std::size_t at = first; at + 1 < line.size(); ++at) {
      if (at > first) within += behind.metres();
      if (within > kOneBendMetres) break;
      last = at;
      const Stride next = strideFrom(line[at], line[at + 1]);
      angle += angleBetween(behind, next);
      behind = next;
    }
    const double shorter =
        std::min(before.metres(), strideFrom(line[last], line[last + 1]).metres());
    const double speed = speedRound(angle, std::max(shorter, kOneBendMetres));
    std::fill(speeds.begin() + static_cast<std::ptrdiff_t>(first),
              speeds.begin() + static_cast<std::ptrdiff_t>(last) + 1, speed);
    first = last + 1;
  }
  return speeds;
}

std::vector<RoutePassage> passagesOf(const Route& route, const std::vector<double>& caps) {
  const std::size_t count = route.geometry.size();
  std::vector<RoutePassage> passages(count);
  for (std::size_t at = 0; at < count; ++at) {
    double speed = caps[at];
    if (at > 0) speed = std::min(speed, static_cast<double>(route.limits[at - 1]));
    if (at + 1 < count) speed = std::min(speed, static_cast<double>(route.limits[at]));
    passages[at].metresPerSecond = at == 0 || at + 1 == count ? 0 : speed;
    if (at > 0) {
      passages[at].metres =
          passages[at - 1].metres + distanceMetres(route.geometry[at - 1], route.geometry[at]);
    }
  }
  for (const RouteStop& stop : route.stops) {
    passages[stop.position].waitSeconds += stop.seconds;
    passages[stop.position].metresPerSecond = 0;
  }
  const auto reachable = [&](std::size_t from, std::size_t to, double change) {
    const double metres = std::abs(passages[to].metres - passages[from].metres);
    const double speed = passages[from].metresPerSecond;
    double& reached = passages[to].metresPerSecond;
    reached = std::min(reached, std::sqrt(speed * speed + 2 * change * metres));
  };
  for (std::size_t at = 1; at < count; ++at) reachable(at - 1, at, kAcceleration);
  for (std::size_t at = count - 1; at > 0; --at) reachable(at, at - 1, kBraking);
  for (std::size_t at = 1; at < count; ++at) {
    const RoutePassage& before = passages[at - 1];
    RoutePassage& here = passages[at];
    here.seconds =
        before.seconds + before.waitSeconds +
        secondsFor(before.metresPerSecond, here.metresPerSecond,
                   static_cast<double>(route.limits[at - 1]), here.metres - before.metres);
  }
  return passages;
}

double metresInto(const RoutePassage& from, const RoutePassage& to, double limit, double seconds) {
  const double metres = to.metres - from.metres;
  const double peak = peakSpeed(from.metresPerSecond, to.metresPerSecond, limit, metres);
  const double all = to.seconds - from.seconds - from.waitSeconds;
  const double left = all - seconds;
  const double speedingUp = (peak - from.metresPerSecond) / kAcceleration;
  const double slowingDown = (peak - to.metresPerSecond) / kBraking;
  double driven = 0;
  if (seconds < speedingUp) {
    driven = (from.metresPerSecond + kAcceleration * seconds / 2) * seconds;
  } else if (left < slowingDown) {
    driven = metres - (to.metresPerSecond + kBraking * left / 2) * left;
  } else {
    driven = (from.metresPerSecond + peak) / 2 * speedingUp + peak * (seconds - speedingUp);
  }
  return std::clamp(driven, 0.0, metres);
}

}  // namespace wayloom
