#include "regions/RegionGeocoder.h"

#include <utility>

namespace wayloom {

namespace {

GeocodedPlace geocoded(const Place& place) {
  return {place.coordinate, addressLines(place)};
}

GeocoderAnswer noAnswer(std::string error) {
  return {std::nullopt, std::move(error)};
}

std::string nothingFound(PlaceIndex& index, const std::string& address,
                         std::optional<Coordinate> near) {
  std::string sentence = "No place of this name was found";
  const auto similar = index.withoutNumbers(address, near);
  if (similar) sentence += ", only " + addressLines(*similar).front();
  return sentence;
}

}  // namespace

RegionGeocoder::RegionGeocoder(RegionStore store, MainQueue& mainQueue) : mQuestions(mainQueue) {
  // Opened before anyone asks, so that the first answer is as quick as those after it.
  mQuestions.prepare([this, store = std::move(store)] { mIndex.emplace(PlaceIndex::open(store)); });
}

void RegionGeocoder::geocodeAddress(const std::string& address, std::optional<Coordinate> near,
                                    Geocoder::Completion completion) {
  ask(
      [address, near](PlaceIndex& index) {
        const auto found = index.search(address, near);
        if (found.empty()) return noAnswer(nothingFound(index, address, near));
        std::vector<GeocodedPlace> places;
        for (const Place& place : found) places.push_back(geocoded(place));
        return GeocoderAnswer{std::move(places), std::nullopt};
      },
      std::move(completion));
}

void RegionGeocoder::reverseGeocode(Coordinate coordinate, Geocoder::Completion completion) {
  ask(
      [coordinate](PlaceIndex& index) {
        const auto place = index.placeAt(coordinate);
        if (!place) return noAnswer("There is no address here");
        return GeocoderAnswer{{{geocoded(*place)}}, std::nullopt};
      },
      std::move(completion));
}

void RegionGeocoder::suggest(const std::string& text, std::optional<Coordinate> near,
                             PlaceSuggestions::Completion completion) {
  mQuestions.askLatest(
      [this, text, near] {
        Result<PlaceIndex>& index = *mIndex;
        return index ? index->suggest(text, near, kMostSuggestions) : std::vector<Place>{};
      },
      std::move(completion));
}

void RegionGeocoder::ask(std::function<GeocoderAnswer(PlaceIndex&)> question,
                         Geocoder::Completion completion) {
  mQuestions.ask(
      [this, question = std::move(question)] {
        Result<PlaceIndex>& index = *mIndex;
        return index ? question(*index) : noAnswer(index.failure().message);
      },
      std::move(completion));
}

}  // namespace wayloom
