#pragma once

#include <memory>
#include <optional>
#include <string>

#include "places/PlaceText.h"
#include "platform/Geocoder.h"
#include "platform/MainQueue.h"

namespace wayloom {

/// Takes positions, links and codes for addresses too, and asks another geocoder for names. A
/// position's address lines are those of what is there, or else its numbers.
class PlaceTextGeocoder : public Geocoder {
 public:
  /// `mainQueue` must outlive it. `language` is the user's, as in "de".
  PlaceTextGeocoder(std::shared_ptr<Geocoder> names, MainQueue& mainQueue, std::string language);

  void geocodeAddress(const std::string& address, std::optional<Coordinate> near,
                      Completion completion) override;
  void reverseGeocode(Coordinate coordinate, Completion completion) override;

 private:
  void answerPosition(Coordinate position, Completion completion);
  void answerShortCode(const ShortPlaceCode& code, std::optional<Coordinate> near,
                       Completion completion);
  void answerError(const std::string& error, Completion completion);
  /// Whoever else holds `mNames` may let it answer after the end of this.
  Completion whileAlive(Completion completion) const;

  MainQueue& mMainQueue;
  const std::string mLanguage;
  /// Answers on their way know by it that nobody waits for them any more.
  std::shared_ptr<const bool> mAlive = std::make_shared<const bool>(true);
  const std::shared_ptr<Geocoder> mNames;
};

}  // namespace wayloom
