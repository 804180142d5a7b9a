#pragma once

#include <memory>
#include <optional>
#include <string>

#include "places/LocationDelegate.h"
#include "places/LocationPlatform.h"

namespace wayloom {

class LocationClass;

/// Finds the device's position and reports it to one delegate. Made by a LocationClass, which must
/// outlive it. Main thread only.
class Location : private PositionSourceDelegate, private UserLocationMapDelegate {
 public:
  Location(LocationClass& shared, const LocationPlatform& platform, LocationDelegate* delegate);
  ~Location() override;

  /// The last accepted position, degrees.
  double longitude = 0;
  double latitude = 0;
  /// The first formatted line of the last address found for it.
  std::optional<std::string> address;

  /// The delegate is not owned; a destroyed one is not told any more.
  void setDelegate(LocationDelegate* delegate);

  /// Asks for one fix: locationSuccess or locationFailed follows.
  void startLocation();
  void startCoordinate();
  void tryToUseLocationManager();
  /// Asks an invisible map for the user's position, and the position service when it has none.
  void tryToUseMapView();

  /// Looks up the address of the last accepted position.
  void startAddress();
  void startGeocoder() { startAddress(); }

 private:
  void didUpdateToLocation(const std::optional<PositionFix>& fix) override;
  void didFailWithError(const std::optional<PositionError>& error) override;
  void mapViewDidUpdateUserLocation(const std::optional<PositionFix>& fix) override;
  void mapViewDidFailToLocateUserWithError(const std::optional<PositionError>& error) override;

  void prepareManager();
  void hideMapView();
  void accept(const PositionFix& fix);
  LocationDelegate* delegate() const;

  LocationClass& mClass;
  LocationPlatform mPlatform;
  std::unique_ptr<PositionSource> mManager;
  std::unique_ptr<UserLocationMap> mMapView;
  bool mIsMapViewShow = false;
  LocationDelegate* mDelegate = nullptr;
  std::weak_ptr<const void> mDelegateLifetime;
  std::shared_ptr<char> mLifetime = std::make_shared<char>();
};

}  // namespace wayloom
