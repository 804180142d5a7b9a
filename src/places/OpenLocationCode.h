#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "geo/Coordinate.h"

namespace wayloom {

// Open Location Codes: pairs of base-20 digits of latitude and longitude, "+" behind the eighth,
// then digits that divide a cell by 4 × 5. A code names a cell, whose middle is the answer.

/// The middle of a full code's cell ("9F9HPXJ8+RV", padded "9F9H0000+" too); none for another text.
std::optional<Coordinate> readFullCode(std::string_view text);

/// Whether a text is a code without its first four or six digits, as in "PXJ8+RV": it needs a place
/// nearby.
bool isShortCode(std::string_view text);

/// The cell of a short code that is nearest to a place.
Coordinate nearestOfShortCode(std::string_view code, Coordinate place);

}  // namespace wayloom
