#pragma once

#include <optional>
#include <rapidjson/fwd.h>
#include <string>

#include "geo/Coordinate.h"
#include "geo/MapRegion.h"

namespace wayloom {

/// One place found by SVGeocoder. A plain value; a field that the service did not fill is absent.
struct SVPlacemark {
  SVPlacemark() = default;
  /// Reads one element of the service's "results"; what is missing or of another type counts as
  /// missing.
  explicit SVPlacemark(const rapidjson::Value& dictionary);

  std::optional<std::string> formattedAddress;
  std::optional<std::string> subThoroughfare;
  std::optional<std::string> thoroughfare;
  std::optional<std::string> subLocality;
  std::optional<std::string> locality;
  std::optional<std::string> subAdministrativeArea;
  std::optional<std::string> administrativeArea;
  std::optional<std::string> administrativeAreaCode;
  std::optional<std::string> postalCode;
  std::optional<std::string> country;
  std::optional<std::string> ISOcountryCode;
  /// Absent when the service gave no position at all; then `coordinate` is 0, 0.
  std::optional<Coordinate> location;
  Coordinate coordinate;
  /// Centred on the place's own position, not on the middle of the area it covers.
  MapRegion region;

  /// A short name to show: street with number, else the most precise part there is.
  std::optional<std::string> name() const;

  /// The fields as text, for debugging.
  std::string description() const;

  bool operator==(const SVPlacemark&) const = default;

 private:
  void readComponent(const rapidjson::Value& component);
  void readGeometry(const rapidjson::Value& geometry);
};

}  // namespace wayloom
