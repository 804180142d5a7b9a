#pragma once

#include <string>

#include "places/Coordinate.h"

namespace wayloom {

/// A number with no more digits than it needs.
std::string shortNumber(double value);

/// The text on one line, whatever it quotes.
std::string oneLine(std::string text);

/// "57.706547, 11.967100".
std::string coordinateText(Coordinate coordinate);

}  // namespace wayloom
