#pragma once

#include <chrono>

#include <QtCore/QAbstractAnimation>

#include "map/MapCamera.h"

namespace wayloom {

/// Carries a camera from one place to another in time. Owned by MapMotion; main thread.
class MapAnimation : public QAbstractAnimation {
  Q_OBJECT

 public:
  enum class Pace {
    Smooth,   ///< starts and ends at rest
    Slowing,  ///< starts at full speed, as after a flick, and runs out
  };

  using QAbstractAnimation::QAbstractAnimation;

  void run(const MapCamera& from, const MapCamera& to, std::chrono::milliseconds duration,
           Pace pace);
  int duration() const override { return mDurationMs; }

  /// How far a flick of a speed carries, in points for points per second, and for how long.
  static double flickDistance(double speed);
  static std::chrono::milliseconds flickDuration(double speed);

 Q_SIGNALS:
  void moved(const wayloom::MapCamera& camera);

 protected:
  void updateCurrentTime(int timeMs) override;

 private:
  double progressAt(int timeMs) const;

  MapCamera mFrom;
  MapCamera mTo;
  int mDurationMs = 0;
  Pace mPace = Pace::Smooth;
};

}  // namespace wayloom
