#pragma once

#include <optional>
#include <string_view>

#include "geo/Coordinate.h"
#include "settings/Result.h"

namespace wayloom {

// Each reads an ASCII text without blanks at its ends. A reference names a square, whose middle is
// the answer. None when the text has not the form at all; a failure when it has, and names nothing.

/// Universal Transverse Mercator in metres: zone with hemisphere or latitude band, then easting and
/// northing, as in "32V 672000 6399000" or "32 N 672000mE 6399000mN".
std::optional<Result<Coordinate>> readUtm(std::string_view text);

/// Military Grid Reference System, with or without blanks, from one kilometre on: "32VPJ 7209
/// 9912".
std::optional<Result<Coordinate>> readMgrs(std::string_view text);

/// A Maidenhead locator of six to ten characters: "JO57xq". Four are too much like other codes.
std::optional<Coordinate> readMaidenhead(std::string_view text);

}  // namespace wayloom
