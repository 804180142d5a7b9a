#include "fuzz/Fuzzing.h"
#include "places/GeocodingAnswer.h"

using namespace wayloom;

/// Any bytes may come from a service: reading them must end in places, an error, or neither, and
/// every place must be able to name and describe itself.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const auto answer = readGeocodingAnswer(textOf(bytes, count));
  if (!answer.placemarks) return 0;
  require(!answer.error || answer.placemarks->empty());
  for (const SVPlacemark& place : *answer.placemarks) {
    require(place.description().ends_with('}'));
    require(!place.name() || place.thoroughfare || place.subLocality || place.locality ||
            place.administrativeArea || place.country);
    require(place.region.center == place.coordinate);
  }
  return 0;
}
