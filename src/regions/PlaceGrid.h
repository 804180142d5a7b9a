#pragma once

#include <string>

#include "geo/Coordinate.h"

namespace wayloom {

/// The word that marks everything in one cell of a half-degree grid in the full-text index. It
/// begins with a sign that no folded word can hold, so no search text finds it. Steps move east
/// and north from the position's cell.
std::string gridWord(Coordinate position, int stepsEast = 0, int stepsNorth = 0);

}  // namespace wayloom
