#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "places/GeocodingAnswer.h"

/// Any bytes may come from a service: reading them must end in places, an error, or neither, and
/// every place must be able to name and describe itself.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const auto answer = wayloom::readGeocodingAnswer({reinterpret_cast<const char*>(bytes), count});
  if (!answer.placemarks) return 0;
  const bool isRefusalOfPlaces = answer.error && !answer.placemarks->empty();
  if (isRefusalOfPlaces) std::abort();
  for (const wayloom::SVPlacemark& place : *answer.placemarks) {
    if (place.description().back() != '}') std::abort();
    if (place.name() && !place.thoroughfare && !place.subLocality && !place.locality &&
        !place.administrativeArea && !place.country) {
      std::abort();
    }
    if (place.region.center != place.coordinate) std::abort();
  }
  return 0;
}
