#include "platform/Geocoder.h"

namespace wayloom {

std::optional<std::string> firstFormattedLine(const GeocoderAnswer& answer) {
  if (answer.error || !answer.places || answer.places->empty()) return std::nullopt;
  const auto& lines = answer.places->front().formattedAddressLines;
  return lines.empty() ? std::nullopt : std::optional(lines.front());
}

}  // namespace wayloom
