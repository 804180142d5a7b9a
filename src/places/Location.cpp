#include "places/Location.h"

#include <cmath>

#include "places/LocationClass.h"

namespace wayloom {

Location::Location(LocationClass& shared, const LocationPlatform& platform,
                   LocationDelegate* delegate)
    : mClass(shared), mPlatform(platform) {
  setDelegate(delegate);
}

Location::~Location() = default;

void Location::setDelegate(LocationDelegate* delegate) {
  mDelegate = delegate;
  mDelegateLifetime = LocationDelegate::lifetimeOf(delegate);
}

LocationDelegate* Location::delegate() const {
  return mDelegateLifetime.expired() ? nullptr : mDelegate;
}

void Location::startLocation() {
  prepareManager();
  mIsMapViewShow = false;
  startCoordinate();
}

void Location::startCoordinate() {
  if (!mClass.isLocationOn()) {
    mPlatform.alerts.show("", "定位服务未开启", "确定");
    didFailWithError(std::nullopt);
    return;
  }
  tryToUseLocationManager();
}

void Location::tryToUseLocationManager() {
  prepareManager();
  mManager->startUpdatingLocation();
}

void Location::tryToUseMapView() {
  if (!mMapView) {
    mMapView = mPlatform.makeUserLocationMap();
    mMapView->setDelegate(this);
    mMapView->addToKeyWindow();
    mIsMapViewShow = true;
  }
  mMapView->setShowsUserLocation(true);
}

void Location::startAddress() {
  mPlatform.geocoder.reverseGeocode(
      {latitude, longitude},
      [this, lifetime = std::weak_ptr<char>(mLifetime)](const GeocoderAnswer& answer) {
        if (lifetime.expired()) return;
        const auto line = firstFormattedLine(answer);
        if (line) address = line;
        LocationDelegate* told = delegate();
        if (!told) return;
        if (line) {
          told->reverseGeocoderSuccess(this, *line);
        } else {
          told->reverseGeocoderFailed(this, answer.error);
        }
      });
}

void Location::didUpdateToLocation(const std::optional<PositionFix>& fix) {
  if (!fix || std::signbit(fix->horizontalAccuracy)) {
    didFailWithError(std::nullopt);
    return;
  }
  accept(*fix);
}

void Location::accept(const PositionFix& fix) {
  mClass.setLatitude(fix.coordinate.latitude);
  mClass.setLongitude(fix.coordinate.longitude);
  longitude = fix.coordinate.longitude;
  latitude = fix.coordinate.latitude;
  if (LocationDelegate* told = delegate()) told->locationSuccess(this, latitude, longitude);
  if (mManager) mManager->stopUpdatingLocation();
}

void Location::didFailWithError(const std::optional<PositionError>& error) {
  if (LocationDelegate* told = delegate()) {
    told->locationFailed(this, error ? std::optional(error->description) : std::nullopt);
  }
  if (error && error->code == PositionError::kDenied) {
    mPlatform.alerts.show("定位失败", "请开启定位以保证程序正常运行", "确定");
  }
  if (mManager) mManager->stopUpdatingLocation();
}

void Location::mapViewDidUpdateUserLocation(const std::optional<PositionFix>& fix) {
  hideMapView();
  mMapView->setShowsUserLocation(false);
  if (fix && !std::signbit(fix->horizontalAccuracy)) {
    accept(*fix);
  } else {
    tryToUseLocationManager();
  }
}

void Location::mapViewDidFailToLocateUserWithError(const std::optional<PositionError>& /*error*/) {
  hideMapView();
  tryToUseLocationManager();
}

void Location::hideMapView() {
  if (mIsMapViewShow) mMapView->removeFromWindow();
  mIsMapViewShow = false;
}

void Location::prepareManager() {
  if (mManager) return;
  mManager = mPlatform.makePositionSource();
  mManager->setDelegate(this);
  mManager->setDesiredAccuracyBest();
  mManager->setDistanceFilter(10.0);
  mManager->requestWhenInUseAuthorization();
  mManager->requestAlwaysAuthorization();
}

}  // namespace wayloom
