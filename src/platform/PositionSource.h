#pragma once

#include <optional>
#include <string>

#include "geo/Coordinate.h"

namespace wayloom {

/// One answer of the platform's position service.
struct PositionFix {
  Coordinate coordinate;
  /// Metres; negative (or negative zero) marks an invalid fix.
  double horizontalAccuracy = 0;
};

/// Why the platform's position service gave no position.
struct PositionError {
  static constexpr int kDenied = 1;

  int code = 0;
  std::string description;
};

/// Told what a PositionSource finds. Main thread.
class PositionSourceDelegate {
 public:
  virtual ~PositionSourceDelegate() = default;
  virtual void didUpdateToLocation(const std::optional<PositionFix>& fix) = 0;
  virtual void didFailWithError(const std::optional<PositionError>& error) = 0;
};

/// The platform's position service. Main thread only.
class PositionSource {
 public:
  virtual ~PositionSource() = default;

  /// The delegate is not owned; null for none.
  virtual void setDelegate(PositionSourceDelegate* delegate) = 0;
  virtual void setDesiredAccuracyBest() = 0;
  virtual void setDistanceFilter(double metres) = 0;
  virtual void requestWhenInUseAuthorization() = 0;
  virtual void requestAlwaysAuthorization() = 0;
  virtual void startUpdatingLocation() = 0;
  virtual void stopUpdatingLocation() = 0;
};

}  // namespace wayloom
