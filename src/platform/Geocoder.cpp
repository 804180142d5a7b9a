#include "platform/Geocoder.h"

namespace wayloom {

std::optional<std::string> firstFormattedLine(const GeocodedPlace& place) {
  const auto& lines = place.formattedAddressLines;
  return lines.empty() ? std::nullopt : std::optional(lines.front());
}

std::optional<std::string> firstFormattedLine(const GeocoderAnswer& answer) {
  if (answer.error || !answer.places || answer.places->empty()) return std::nullopt;
  return firstFormattedLine(answer.places->front());
}

}  // namespace wayloom
