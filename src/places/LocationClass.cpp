#include "places/LocationClass.h"

namespace wayloom {

namespace {
const std::string kLongitudeKey = "LocationLongitudeKey";
const std::string kLatitudeKey = "LocationLatitudeKey";
}  // namespace

Location& LocationClass::sharedInstacneWithDelegate(LocationDelegate* delegate) {
  if (mShared) {
    mShared->setDelegate(delegate);
  } else {
    mShared = locationWihtDelegate(delegate);
  }
  return *mShared;
}

std::unique_ptr<Location> LocationClass::locationWihtDelegate(LocationDelegate* delegate) {
  return std::make_unique<Location>(*this, mPlatform, delegate);
}

double LocationClass::longitude() const {
  return mShared ? mShared->longitude : mPlatform.defaults.number(kLongitudeKey).value_or(0);
}

double LocationClass::latitude() const {
  return mShared ? mShared->latitude : mPlatform.defaults.number(kLatitudeKey).value_or(0);
}

void LocationClass::setLongitude(double longitude) {
  if (mShared) mShared->longitude = longitude;
  mPlatform.defaults.setNumber(kLongitudeKey, longitude);
  mPlatform.defaults.synchronize();
}

void LocationClass::setLatitude(double latitude) {
  if (mShared) mShared->latitude = latitude;
  mPlatform.defaults.setNumber(kLatitudeKey, latitude);
  mPlatform.defaults.synchronize();
}

std::optional<std::string> LocationClass::address() const {
  return mShared ? mShared->address : std::nullopt;
}

bool LocationClass::isLocationOn() const {
  return mPlatform.locationServicesEnabled();
}

void LocationClass::addressWithCoordinate(Coordinate coordinate, LocationDelegate* delegate) {
  mPlatform.geocoder.reverseGeocode(
      coordinate,
      [delegate, lifetime = LocationDelegate::lifetimeOf(delegate)](const GeocoderAnswer& answer) {
        if (lifetime.expired()) return;
        if (const auto line = firstFormattedLine(answer)) {
          delegate->reverseGeocoderSuccess(nullptr, *line);
        } else {
          delegate->reverseGeocoderFailed(nullptr, answer.error);
        }
      });
}

void LocationClass::coordinateWithAddress(const std::string& address, LocationDelegate* delegate) {
  mPlatform.geocoder.geocodeAddress(
      address, std::nullopt,
      [delegate, lifetime = LocationDelegate::lifetimeOf(delegate)](const GeocoderAnswer& answer) {
        if (lifetime.expired()) return;
        if (answer.places && !answer.places->empty() && !answer.error) {
          delegate->geocoderSuccess(nullptr, answer.places->front().coordinate);
        } else {
          delegate->geocoderFailed(nullptr, answer.error);
        }
      });
}

}  // namespace wayloom
