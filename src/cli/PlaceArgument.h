#pragma once

#include <optional>
#include <string>
#include <variant>

#include "cli/CommandLine.h"
#include "geo/Coordinate.h"

namespace wayloom {

/// A PLACE argument that was understood, or how the command must end.
using ResolvedPlace = std::variant<GeocodedPlace, ExitStatus>;

/// Understands PLACE: "LAT,LON" or "#:LAT,LON" in degrees, or an address that is looked up in the
/// installed regions. A failure has been reported already when its status is returned.
ResolvedPlace resolvePlace(CommandLine& line, const std::string& argument);

/// "LAT,LON" or "#:LAT,LON" with both numbers complete and on the globe; none otherwise.
std::optional<Coordinate> parseCoordinate(std::string_view text);

/// Asks the geocoder and waits for its answer.
GeocoderAnswer geocodeNow(CommandLine& line, const std::string& address,
                          std::optional<Coordinate> near);
GeocoderAnswer reverseGeocodeNow(CommandLine& line, Coordinate coordinate);

}  // namespace wayloom
