#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "geo/Coordinate.h"
#include "places/RecentSearches.h"
#include "platform/Geocoder.h"
#include "platform/PlaceSuggestions.h"
#include "settings/Phrase.h"

namespace wayloom {

/// One thing that a search field offers: a place that may be meant, the position that was
/// understood, or a search of before.
struct SearchOffer {
  /// What is searched when it is chosen. For a place the query is its position, which leads there
  /// and nowhere else.
  RecentSearch search;
  /// What sort of place it is; none for a search of before.
  std::optional<Phrase> kind;
  /// What it lies in, or the address of a position; may be empty.
  std::string whereabouts;
  /// From the middle of the map.
  std::optional<double> metres;
};

/// What search fields offer while something is typed, and before. One question at a time is open,
/// whoever asks. Main thread only.
class SearchOffers {
 public:
  /// Runs later, or at once; not if another question was asked first, or after `forget`.
  using Completion = std::function<void(std::vector<SearchOffer>)>;

  /// `geocoder` is asked where a position was typed, `names` for all else; `language` is the
  /// user's, as in "de". All must outlive this object.
  SearchOffers(Geocoder& geocoder, PlaceSuggestions& names, RecentSearches& recent,
               std::string language);

  /// At most eight offers for a text, likeliest first; for one of blanks, the recent searches.
  /// `near` is the middle of the map.
  void ask(const std::string& text, std::optional<Coordinate> near, Completion completion);
  void forget() { mOpen.reset(); }

  /// What was searched for is offered from now on, or no more.
  RecentSearches& recent() { return mRecent; }

 private:
  void askForPosition(const std::string& text, std::optional<Coordinate> near,
                      Completion completion);
  void askForNames(const std::string& words, std::optional<Coordinate> near, Completion completion);
  std::vector<SearchOffer> recentOffers() const;

  Geocoder& mGeocoder;
  PlaceSuggestions& mNames;
  RecentSearches& mRecent;
  const std::string mLanguage;
  /// There while a question waits for its answer.
  std::shared_ptr<const bool> mOpen;
};

}  // namespace wayloom
