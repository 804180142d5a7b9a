#pragma once

#include <filesystem>
#include <vector>

#include "PlaceLabels.h"
#include "Street.h"
#include "regions/Database.h"

namespace wayloom {

/// Writes the drawing tables of a town: built-up area, squares, streets with their names and
/// numbers, which keep clear of the place names `labels`.
Status addStreetDrawing(Database& database, const std::vector<Street>& streets,
                        const std::vector<PlaceLabel>& labels);

/// The streets of a GeoJSON file of OpenStreetMap ways.
Result<std::vector<Street>> readStreets(const std::filesystem::path& path);

}  // namespace wayloom
