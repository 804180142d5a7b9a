#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "geo/Coordinate.h"
#include "settings/Result.h"

namespace wayloom {

/// Words that name a place.
struct PlaceName {
  std::string words;
};

/// An Open Location Code that lacks its first digits, and the place that it is near to; without
/// words for the place, near to whatever is near already.
struct ShortPlaceCode {
  std::string code;
  std::string place;
};

/// What a text means by which a person says a place.
using PlaceText = std::variant<PlaceName, Coordinate, ShortPlaceCode, Failure>;

/// Reads a place as people write and share it: degrees, geo: addresses and links to maps, Open
/// Location Codes, UTM, MGRS, Maidenhead locators. Everything else is a name; a position that is
/// none on this globe is a failure. `language` is that of whoever wrote it, as in "de".
PlaceText readPlaceText(std::string_view text, std::string_view language);

}  // namespace wayloom
