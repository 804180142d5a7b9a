#include "places/PlaceTextGeocoder.h"

#include <utility>

#include "places/OpenLocationCode.h"
#include "settings/TextConversions.h"

namespace wayloom {

namespace {

GeocoderAnswer answerOf(GeocodedPlace place) {
  return {{{std::move(place)}}, std::nullopt};
}

bool hasPlaces(const GeocoderAnswer& answer) {
  return answer.places && !answer.places->empty();
}

}  // namespace

PlaceTextGeocoder::PlaceTextGeocoder(std::shared_ptr<Geocoder> names, MainQueue& mainQueue,
                                     std::string language)
    : mMainQueue(mainQueue), mLanguage(std::move(language)), mNames(std::move(names)) {}

void PlaceTextGeocoder::geocodeAddress(const std::string& address, std::optional<Coordinate> near,
                                       Completion completion) {
  const PlaceText text = readPlaceText(address, mLanguage);
  if (const auto* position = std::get_if<Coordinate>(&text)) {
    answerPosition(*position, std::move(completion));
  } else if (const auto* code = std::get_if<ShortPlaceCode>(&text)) {
    answerShortCode(*code, near, std::move(completion));
  } else if (const auto* wrong = std::get_if<Failure>(&text)) {
    answerError(wrong->message, std::move(completion));
  } else {
    mNames->geocodeAddress(std::get<PlaceName>(text).words, near,
                           whileAlive(std::move(completion)));
  }
}

void PlaceTextGeocoder::reverseGeocode(Coordinate coordinate, Completion completion) {
  mNames->reverseGeocode(coordinate, whileAlive(std::move(completion)));
}

void PlaceTextGeocoder::answerPosition(Coordinate position, Completion completion) {
  mNames->reverseGeocode(
      position, [alive = std::weak_ptr(mAlive), position,
                 completion = std::move(completion)](const GeocoderAnswer& there) {
        if (alive.expired() || !completion) return;
        GeocodedPlace place{position, {}};
        if (hasPlaces(there))
          place.formattedAddressLines = there.places->front().formattedAddressLines;
        if (place.formattedAddressLines.empty()) {
          place.formattedAddressLines = {formatReal(position.latitude) + ", " +
                                         formatReal(position.longitude)};
        }
        completion(answerOf(std::move(place)));
      });
}

void PlaceTextGeocoder::answerShortCode(const ShortPlaceCode& code, std::optional<Coordinate> near,
                                        Completion completion) {
  if (code.place.empty() && near) {
    return answerPosition(nearestOfShortCode(code.code, *near), std::move(completion));
  }
  if (code.place.empty()) {
    return answerError("a short code needs a place, as in \"PXJ8+RV Vaduz\"",
                       std::move(completion));
  }
  mNames->geocodeAddress(
      code.place, near,
      [this, alive = std::weak_ptr(mAlive), digits = code.code,
       completion = std::move(completion)](const GeocoderAnswer& answer) {
        if (alive.expired()) return;
        if (!hasPlaces(answer)) {
          if (completion) completion(answer);
          return;
        }
        answerPosition(nearestOfShortCode(digits, answer.places->front().coordinate), completion);
      });
}

Geocoder::Completion PlaceTextGeocoder::whileAlive(Completion completion) const {
  return [alive = std::weak_ptr(mAlive),
          completion = std::move(completion)](const GeocoderAnswer& answer) {
    if (!alive.expired() && completion) completion(answer);
  };
}

void PlaceTextGeocoder::answerError(const std::string& error, Completion completion) {
  mMainQueue.post([alive = std::weak_ptr(mAlive), error, completion = std::move(completion)] {
    if (!alive.expired() && completion) completion({std::nullopt, error});
  });
}

}  // namespace wayloom
