#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "geo/Coordinate.h"
#include "places/MapLink.h"

namespace wayloom {

enum class Order { LatitudeFirst, LongitudeFirst };
/// What may follow a pair of numbers besides a label in brackets.
enum class Behind { Nothing, Anything };

/// What a form finds in a link: nothing, a target, or what is wrong with it.
using Found = std::optional<Result<LinkTarget>>;

/// Cuts a number off the beginning of a text, which may have a sign, but no exponent.
std::optional<double> takeNumber(std::string_view& text);
/// The same for numbers with a point. Whole ones in links are anything: days, issues, pages.
std::optional<double> takeFraction(std::string_view& text);

/// The position, or which of its numbers is not on the globe.
Found checked(Coordinate position);

/// "57.7,11.97", "57.7~11.97", "57.7, 11.97 (Home)", and, where anything may follow,
/// "57.7,11.97,17z", "57.7_11.97_Home" and the like.
std::optional<Coordinate> pairIn(std::string_view text, Order order, Behind behind);

/// A position in numbers, or in degrees as people write them.
Found positionIn(const std::string& value, Order order, Behind behind);

}  // namespace wayloom
