#pragma once

#include <memory>
#include <optional>
#include <string>

#include "geo/Coordinate.h"

namespace wayloom {

class Location;

/// Told what a Location finds; override what is of interest. The first argument is the reporting
/// Location, null when a class-level operation reports. An error text is absent when the platform
/// gave no error. Main thread.
class LocationDelegate {
 public:
  virtual ~LocationDelegate() = default;

  virtual void locationSuccess(Location* /*location*/, double /*latitude*/, double /*longitude*/) {}
  virtual void locationFailed(Location* /*location*/, const std::optional<std::string>& /*error*/) {
  }
  virtual void reverseGeocoderSuccess(Location* /*location*/, const std::string& /*address*/) {}
  virtual void reverseGeocoderFailed(Location* /*location*/,
                                     const std::optional<std::string>& /*error*/) {}
  virtual void geocoderSuccess(Location* /*location*/, Coordinate /*coordinate*/) {}
  virtual void geocoderFailed(Location* /*location*/, const std::optional<std::string>& /*error*/) {
  }

  /// Expires with the delegate, so that a late answer is not sent to one that is gone; expired from
  /// the start without one.
  static std::weak_ptr<const void> lifetimeOf(const LocationDelegate* delegate) {
    return delegate ? std::weak_ptr(delegate->mLifetime) : std::weak_ptr<const void>();
  }

 protected:
  LocationDelegate() = default;
  LocationDelegate(const LocationDelegate&) = delete;
  LocationDelegate& operator=(const LocationDelegate&) = delete;

 private:
  std::shared_ptr<const void> mLifetime = std::make_shared<char>();
};

}  // namespace wayloom
