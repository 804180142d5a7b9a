#pragma once

#include <filesystem>
#include <vector>

#include "drawing/PlaceLabels.h"
#include "regions/Database.h"

namespace wayloom {

/// The names of countries and places that the map shows, chosen so that none touches another.
Result<std::vector<PlaceLabel>> worldLabels(const std::filesystem::path& packages);

/// Writes the drawing tables of the world: land, coast, borders, lakes, rivers and the labels, from
/// the data packages below `packages` (a node_modules folder).
Status addWorldDrawing(Database& database, const std::filesystem::path& packages,
                       const std::vector<PlaceLabel>& labels);

}  // namespace wayloom
