#pragma once

#include <optional>

#include "platform/PositionSource.h"

namespace wayloom {

/// Told what an invisible map finds out about the user's position. Main thread.
class UserLocationMapDelegate {
 public:
  virtual ~UserLocationMapDelegate() = default;
  virtual void mapViewDidUpdateUserLocation(const std::optional<PositionFix>& fix) = 0;
  virtual void mapViewDidFailToLocateUserWithError(const std::optional<PositionError>& error) = 0;
};

/// A map view of one point outside the screen that can be asked where the user is. Main thread
/// only.
class UserLocationMap {
 public:
  virtual ~UserLocationMap() = default;

  /// The delegate is not owned; null for none.
  virtual void setDelegate(UserLocationMapDelegate* delegate) = 0;
  virtual void addToKeyWindow() = 0;
  virtual void removeFromWindow() = 0;
  virtual void setShowsUserLocation(bool shows) = 0;
};

}  // namespace wayloom
