#pragma once

#include <functional>
#include <memory>

#include "platform/Alerts.h"
#include "platform/Geocoder.h"
#include "platform/PositionSource.h"
#include "platform/UserDefaults.h"
#include "platform/UserLocationMap.h"

namespace wayloom {

/// The platform services that Location stands on; all must outlive whoever uses them.
struct LocationPlatform {
  /// Whether the user has the position service switched on at all.
  std::function<bool()> locationServicesEnabled;
  std::function<std::unique_ptr<PositionSource>()> makePositionSource;
  std::function<std::unique_ptr<UserLocationMap>()> makeUserLocationMap;
  Geocoder& geocoder;
  UserDefaults& defaults;
  Alerts& alerts;
};

}  // namespace wayloom
