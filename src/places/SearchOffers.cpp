#include "places/SearchOffers.h"

#include <utility>

#include "geo/GroundDistance.h"
#include "places/PlaceText.h"
#include "settings/TextConversions.h"
#include "settings/TrimmedText.h"

namespace wayloom {

namespace {

// A position may be typed behind it, too.
constexpr std::string_view kPositionMark = "#:";

Phrase kindPhrase(PlaceKind kind) {
  switch (kind) {
    case PlaceKind::kCountry:
      return Phrase{"Country"};
    case PlaceKind::kDivision:
      return Phrase{"Province"};
    case PlaceKind::kSettlement:
      return Phrase{"Town"};
    case PlaceKind::kStreet:
      return Phrase{"Street"};
    case PlaceKind::kAddress:
      return Phrase{"House"};
    case PlaceKind::kPointOfInterest:
      return Phrase{"Place"};
    case PlaceKind::kPostcode:
      return Phrase{"Postcode"};
  }
  return Phrase{"Place"};
}

std::string whereaboutsOf(const Place& place) {
  std::string text;
  std::string_view last = place.name;
  for (const std::string* part : {&place.locality, &place.division, &place.country}) {
    if (part->empty() || *part == last) continue;
    if (!text.empty()) text += ", ";
    text += *part;
    last = *part;
  }
  return text;
}

std::optional<double> metresFrom(std::optional<Coordinate> near, Coordinate place) {
  return near ? std::optional(distanceMetres(*near, place)) : std::nullopt;
}

SearchOffer offerOf(const Place& place, std::optional<Coordinate> near) {
  return {.search = {place.name, coordinateText(place.coordinate)},
          .kind = kindPhrase(place.kind),
          .whereabouts = whereaboutsOf(place),
          .metres = metresFrom(near, place.coordinate)};
}

SearchOffer offerOf(const GeocodedPlace& position, std::optional<Coordinate> near) {
  const std::string numbers = coordinateText(position.coordinate);
  const std::string address = firstFormattedLine(position).value_or("");
  return {.search = {numbers, numbers},
          .kind = Phrase{"Position"},
          .whereabouts = address == numbers ? std::string() : address,
          .metres = metresFrom(near, position.coordinate)};
}

}  // namespace

SearchOffers::SearchOffers(Geocoder& geocoder, PlaceSuggestions& names, RecentSearches& recent,
                           std::string language)
    : mGeocoder(geocoder), mNames(names), mRecent(recent), mLanguage(std::move(language)) {}

void SearchOffers::ask(const std::string& text, std::optional<Coordinate> near,
                       Completion completion) {
  mOpen = std::make_shared<const bool>(true);
  std::string trimmed = trimmedText(text);
  if (trimmed.empty()) return completion(recentOffers());
  const bool isMarked = trimmed.starts_with(kPositionMark);
  if (isMarked) trimmed.erase(0, kPositionMark.size());
  const PlaceText read = readPlaceText(trimmed, mLanguage);
  const auto* name = std::get_if<PlaceName>(&read);
  if (std::holds_alternative<Failure>(read) || (isMarked && name)) {
    completion({});
  } else if (name) {
    askForNames(name->words, near, std::move(completion));
  } else {
    askForPosition(trimmed, near, std::move(completion));
  }
}

void SearchOffers::askForPosition(const std::string& text, std::optional<Coordinate> near,
                                  Completion completion) {
  mGeocoder.geocodeAddress(text, near,
                           [open = std::weak_ptr(mOpen), near,
                            completion = std::move(completion)](const GeocoderAnswer& answer) {
                             if (open.expired()) return;
                             std::vector<SearchOffer> offers;
                             if (answer.places && !answer.places->empty()) {
                               offers.push_back(offerOf(answer.places->front(), near));
                             }
                             completion(std::move(offers));
                           });
}

void SearchOffers::askForNames(const std::string& words, std::optional<Coordinate> near,
                               Completion completion) {
  mNames.suggest(words, near,
                 [open = std::weak_ptr(mOpen), near,
                  completion = std::move(completion)](const std::vector<Place>& places) {
                   if (open.expired()) return;
                   std::vector<SearchOffer> offers;
                   for (const Place& place : places) offers.push_back(offerOf(place, near));
                   completion(std::move(offers));
                 });
}

std::vector<SearchOffer> SearchOffers::recentOffers() const {
  std::vector<SearchOffer> offers;
  for (RecentSearch& search : mRecent.all()) offers.push_back({std::move(search), {}, {}, {}});
  return offers;
}

}  // namespace wayloom
