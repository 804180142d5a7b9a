#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "places/Coordinate.h"

namespace wayloom {

/// A number with no more digits than it needs.
std::string shortNumber(double value);

/// "57.706547, 11.967100".
std::string coordinateText(Coordinate coordinate);

/// {"latitude": 57.706547, "longitude": 11.9671}.
nlohmann::json toJson(Coordinate coordinate);

/// The text as one line without control characters, whoever wrote it: safe to print on a terminal.
std::string oneLine(std::string text);

}  // namespace wayloom
