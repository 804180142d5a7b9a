#include "places/WebGeocoder.h"

#include <utility>

namespace wayloom {

namespace {

/// How far around a coordinate places count as near it: a city and its surroundings.
constexpr double kNearMetres = 100'000;

std::optional<GeocodedPlace> place(const SVPlacemark& placemark) {
  if (!placemark.location) return std::nullopt;
  const Coordinate at = *placemark.location;
  if (!isOnGlobe(at)) return std::nullopt;
  GeocodedPlace place{at, {}};
  for (const auto& line : {placemark.formattedAddress, placemark.name()}) {
    if (!line || line->empty()) continue;
    place.formattedAddressLines.push_back(*line);
    break;
  }
  return place;
}

SVGeocoderCompletionHandler handler(Geocoder::Completion completion) {
  return
      [completion = std::move(completion)](const auto& placemarks, const auto&, const auto& error) {
        GeocoderAnswer answer;
        if (error) answer.error = error->localizedDescription;
        std::vector<GeocodedPlace> places;
        for (const SVPlacemark& placemark : placemarks.value_or(std::vector<SVPlacemark>())) {
          if (auto found = place(placemark)) places.push_back(std::move(*found));
        }
        if (!error && !places.empty()) answer.places = std::move(places);
        completion(answer);
      };
}

}  // namespace

WebGeocoder::WebGeocoder(SVGeocoderEnvironment environment)
    : mEnvironment(std::move(environment)) {}

WebGeocoder::~WebGeocoder() {
  for (const auto& operation : mOperations) operation->cancel();
}

void WebGeocoder::geocodeAddress(const std::string& address, std::optional<Coordinate> near,
                                 Completion completion) {
  if (!near)
    return keep(SVGeocoder::geocode(mEnvironment, address, handler(std::move(completion))));
  keep(SVGeocoder::geocode(mEnvironment, address, CircularRegion{*near, kNearMetres},
                           handler(std::move(completion))));
}

void WebGeocoder::reverseGeocode(Coordinate coordinate, Completion completion) {
  keep(SVGeocoder::reverseGeocode(mEnvironment, coordinate, handler(std::move(completion))));
}

void WebGeocoder::keep(std::shared_ptr<SVGeocoder> operation) {
  std::erase_if(mOperations, [](const auto& known) { return known->isFinished(); });
  mOperations.push_back(std::move(operation));
}

}  // namespace wayloom
