#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "geo/Coordinate.h"

namespace wayloom {

/// One place a geocoder found.
struct GeocodedPlace {
  Coordinate coordinate;
  /// The address as a person would write it, most precise line first; never empty lines.
  std::vector<std::string> formattedAddressLines;
};

/// What a geocoder answers: places, best first, or an error text (none when the geocoder failed
/// without saying why). `places` is absent when there was an error.
struct GeocoderAnswer {
  std::optional<std::vector<GeocodedPlace>> places;
  std::optional<std::string> error;
};

/// The first line of a place, or of the first place of an answer without an error, if there is one.
std::optional<std::string> firstFormattedLine(const GeocodedPlace& place);
std::optional<std::string> firstFormattedLine(const GeocoderAnswer& answer);

/// Turns addresses into places and back. Completions run on the main thread, later; they do not
/// run any more once the geocoder is destroyed.
class Geocoder {
 public:
  using Completion = std::function<void(const GeocoderAnswer&)>;

  virtual ~Geocoder() = default;

  /// Places for an address text. `near` (if given) ranks places close to it higher.
  virtual void geocodeAddress(const std::string& address, std::optional<Coordinate> near,
                              Completion completion) = 0;

  /// What is at a coordinate.
  virtual void reverseGeocode(Coordinate coordinate, Completion completion) = 0;
};

}  // namespace wayloom
