#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "places/Coordinate.h"

namespace wayloom {

/// What was typed into a search field.
struct EmptySearch {};
/// "#:" with anything but two parts after it: nothing happens.
struct MalformedCoordinateSearch {};
struct AddressSearch {
  std::string address;
};
using SearchInput = std::variant<EmptySearch, MalformedCoordinateSearch, Coordinate, AddressSearch>;

/// Reads a search text. "#:LATITUDE,LONGITUDE" is a coordinate in degrees, whose parts are taken as
/// numbers without a test of their range (0 when a part is no number); all else is an address.
SearchInput parseSearchInput(std::string_view text);

}  // namespace wayloom
