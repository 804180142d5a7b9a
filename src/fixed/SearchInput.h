#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "geo/Coordinate.h"

namespace wayloom {

/// What was typed into a search field.
struct EmptySearch {};
/// "#:" with anything but two parts after it: nothing happens.
struct MalformedCoordinateSearch {};
struct AddressSearch {
  std::string address;
};
using SearchInput = std::variant<EmptySearch, MalformedCoordinateSearch, Coordinate, AddressSearch>;

/// The two sides of "LATITUDE,LONGITUDE" without the blanks around them.
struct CoordinateTexts {
  std::string latitude;
  std::string longitude;
};

/// What stands behind the "#:" that marks a position, blanks before it or not; none without it.
std::optional<std::string> markedPosition(std::string_view text);

/// None when there is not exactly one comma.
std::optional<CoordinateTexts> splitCoordinate(std::string_view text);

/// Reads a search text. "#:LATITUDE,LONGITUDE" is a coordinate in degrees, whose parts are taken as
/// numbers without a test of their range (0 when a part is no number); all else is an address.
SearchInput parseSearchInput(std::string_view text);

}  // namespace wayloom
