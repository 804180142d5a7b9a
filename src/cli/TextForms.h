#pragma once

#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "geo/Coordinate.h"
#include "settings/TextConversions.h"

namespace wayloom {

/// A number with no more digits than it needs.
std::string shortNumber(double value);

/// {"latitude": 57.706547, "longitude": 11.9671}.
nlohmann::json toJson(Coordinate coordinate);

/// The text as one line that does nothing to a terminal, whoever wrote it: no control characters,
/// no marks that turn the direction of writing. What comes behind `mostCharacters` becomes "…".
std::string oneLine(std::string_view text,
                    std::size_t mostCharacters = std::numeric_limits<std::size_t>::max());

/// An argument as a message names it: one line of at most 200 characters in quotes.
std::string inQuotes(std::string_view argument);

}  // namespace wayloom
