#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/Geocoder.h"
#include "platform/MainQueue.h"
#include "platform/PlaceSuggestions.h"
#include "regions/PlaceIndex.h"
#include "regions/RegionQuestions.h"
#include "regions/RegionStore.h"

namespace wayloom {

/// The geocoder, and the suggestions, of the installed regions: needs no network. Requests are
/// answered one after the other on a thread of its own. Made, asked and destroyed on the main
/// thread, where the completions run; requests still open on destruction are dropped.
class RegionGeocoder : public Geocoder, public PlaceSuggestions {
 public:
  /// `mainQueue` must outlive the geocoder.
  RegionGeocoder(RegionStore store, MainQueue& mainQueue);

  void geocodeAddress(const std::string& address, std::optional<Coordinate> near,
                      Geocoder::Completion completion) override;
  void reverseGeocode(Coordinate coordinate, Geocoder::Completion completion) override;
  void suggest(const std::string& text, std::optional<Coordinate> near,
               PlaceSuggestions::Completion completion) override;

 private:
  void ask(std::function<GeocoderAnswer(PlaceIndex&)> question, Geocoder::Completion completion);

  /// Opened and used on the thread of the questions only.
  std::optional<Result<PlaceIndex>> mIndex;
  RegionQuestions mQuestions;
};

}  // namespace wayloom
