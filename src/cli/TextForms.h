#pragma once

#include <string>

#include "places/Coordinate.h"

namespace wayloom {

/// A number with no more digits than it needs.
std::string shortNumber(double value);

/// "57.706547, 11.967100".
std::string coordinateText(Coordinate coordinate);

}  // namespace wayloom
