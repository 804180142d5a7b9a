#pragma once

#include <vector>

#include "drawing/PlaceLabels.h"
#include "drawing/Street.h"
#include "regions/Database.h"

namespace wayloom {

/// Writes the drawing tables of streets: squares, streets with their names and numbers, which keep
/// clear of the place names `labels`.
Status addStreetDrawing(Database& database, const std::vector<Street>& streets,
                        const std::vector<PlaceLabel>& labels);

}  // namespace wayloom
