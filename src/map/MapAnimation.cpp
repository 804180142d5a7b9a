#include "map/MapAnimation.h"

#include <algorithm>
#include <cmath>

#include <QtCore/QEasingCurve>

namespace wayloom {

namespace {
// A flick loses its speed exponentially and counts as stopped below the slowest speed.
constexpr double kDecaySeconds = 0.325;
constexpr double kSlowestPointsPerSecond = 12;
}  // namespace

double MapAnimation::flickDistance(double speed) {
  return std::max(speed - kSlowestPointsPerSecond, 0.0) * kDecaySeconds;
}

std::chrono::milliseconds MapAnimation::flickDuration(double speed) {
  const double seconds = kDecaySeconds * std::log(std::max(speed / kSlowestPointsPerSecond, 1.0));
  return std::chrono::milliseconds(std::lround(seconds * 1000));
}

void MapAnimation::run(const MapCamera& from, const MapCamera& to,
                       std::chrono::milliseconds duration, Pace pace) {
  stop();
  mFrom = from;
  mTo = to;
  mDurationMs = std::max(1, static_cast<int>(duration.count()));
  mPace = pace;
  start();
}

double MapAnimation::progressAt(int timeMs) const {
  const double part = static_cast<double>(timeMs) / mDurationMs;
  if (part >= 1) return 1;
  if (mPace == Pace::Smooth) return QEasingCurve(QEasingCurve::InOutCubic).valueForProgress(part);
  const auto gone = [](double ms) { return 1 - std::exp(-ms / 1000 / kDecaySeconds); };
  return gone(timeMs) / gone(mDurationMs);
}

void MapAnimation::updateCurrentTime(int timeMs) {
  if (state() == Running) Q_EMIT moved(MapCamera::between(mFrom, mTo, progressAt(timeMs)));
}

}  // namespace wayloom
