#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "geo/Coordinate.h"
#include "settings/Result.h"

namespace wayloom {

/// A text as readers of positions see it: at most so many characters, digits and punctuation in
/// their ASCII form whatever their script or width, every blank " ", every mark of degrees "°", of
/// minutes "'" and of seconds "\"", nothing invisible. None when it is too long or no UTF-8.
std::optional<std::u32string> plainText(std::string_view text);

/// Reads a position in degrees, degrees and minutes, or degrees, minutes and seconds: signed or
/// with points of the compass, in any order if those say which is which, decimals with point or
/// comma, labelled ("lat: …") or not, as ISO 6709, WKT or GeoJSON points. `language` says whether
/// "O" is the German east or the French and Spanish west; in others it is neither. None when the
/// text is no position; a failure when it is a wrong one, as in "latitude 95 is beyond 90 degrees".
std::optional<Result<Coordinate>> readDegrees(const std::u32string& plain,
                                              std::string_view language);

/// The position itself if it is on the globe, or which number is not.
Result<Coordinate> checkedPosition(Coordinate position);

}  // namespace wayloom
