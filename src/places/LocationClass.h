#pragma once

#include <memory>
#include <optional>
#include <string>

#include "places/Location.h"

namespace wayloom {

/// The class-level half of Location: the shared instance, the last position across launches, and
/// geocoding that belongs to no instance. The application owns one. Main thread only.
class LocationClass {
 public:
  explicit LocationClass(LocationPlatform platform) : mPlatform(std::move(platform)) {}

  /// The shared instance, made on first use; from now on it reports to `delegate` only.
  Location& sharedInstacneWithDelegate(LocationDelegate* delegate);
  /// A new instance of the caller's own.
  std::unique_ptr<Location> locationWihtDelegate(LocationDelegate* delegate);

  /// The last position, degrees: the shared instance's, else what the user defaults remember, else
  /// 0. The setters store into both.
  double longitude() const;
  double latitude() const;
  void setLongitude(double longitude);
  void setLatitude(double latitude);

  /// The shared instance's address.
  std::optional<std::string> address() const;

  bool isLocationOn() const;

  /// Report reverseGeocoderSuccess with the first address line, or reverseGeocoderFailed; to nobody
  /// without a delegate.
  void addressWithCoordinate(Coordinate coordinate, LocationDelegate* delegate);
  void reverseGeocoderCoordinate(Coordinate coordinate, LocationDelegate* delegate) {
    addressWithCoordinate(coordinate, delegate);
  }

  /// Report geocoderSuccess with the best place, or geocoderFailed; to nobody without a delegate.
  void coordinateWithAddress(const std::string& address, LocationDelegate* delegate);
  void geocoderAddress(const std::string& address, LocationDelegate* delegate) {
    coordinateWithAddress(address, delegate);
  }

  /// Turns "\u" escapes (backslash, u, four hexadecimal digits) into characters, and the four
  /// characters \r\n into a line feed. None when the text is malformed.
  static std::optional<std::string> replaceUnicode(const std::string& text);

 private:
  LocationPlatform mPlatform;
  std::unique_ptr<Location> mShared;
};

}  // namespace wayloom
