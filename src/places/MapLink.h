#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "geo/Coordinate.h"
#include "settings/Result.h"

namespace wayloom {

/// What a link shows: a position, or else the words that it searches for.
using LinkTarget = std::variant<Coordinate, std::string>;

/// The link in a text: all of it, or what begins like one among other words ("Home https://…").
/// None when there is none.
std::optional<std::string_view> linkIn(std::string_view text);

/// Reads a geo: address (RFC 5870, with the "q" that telephones add) or a link to a map. No request
/// leaves: a link that holds neither position nor words is a failure.
Result<LinkTarget> readMapLink(std::string_view link);

}  // namespace wayloom
