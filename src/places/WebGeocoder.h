#pragma once

#include <memory>
#include <vector>

#include "places/SVGeocoder.h"
#include "platform/Geocoder.h"

namespace wayloom {

/// A geocoder that asks the online service. Main thread only; destroying it cancels what is under
/// way.
class WebGeocoder : public Geocoder {
 public:
  explicit WebGeocoder(SVGeocoderEnvironment environment);
  ~WebGeocoder() override;

  void geocodeAddress(const std::string& address, std::optional<Coordinate> near,
                      Completion completion) override;
  void reverseGeocode(Coordinate coordinate, Completion completion) override;

 private:
  /// Remembers an operation until it has finished.
  void keep(std::shared_ptr<SVGeocoder> operation);

  const SVGeocoderEnvironment mEnvironment;
  std::vector<std::shared_ptr<SVGeocoder>> mOperations;
};

}  // namespace wayloom
