#pragma once

#include <filesystem>
#include <vector>

#include "Street.h"
#include "regions/Database.h"

namespace wayloom {

/// Writes the drawing tables of a town: built-up area, squares, streets with their names and
/// numbers.
Status addStreetDrawing(Database& database, const std::vector<Street>& streets);

/// The streets of a GeoJSON file of OpenStreetMap ways.
Result<std::vector<Street>> readStreets(const std::filesystem::path& path);

}  // namespace wayloom
