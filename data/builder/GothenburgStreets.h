#pragma once

#include <filesystem>
#include <vector>

#include "drawing/Street.h"
#include "regions/Database.h"

namespace wayloom {

/// The streets of a GeoJSON file of OpenStreetMap ways.
Result<std::vector<Street>> readStreets(const std::filesystem::path& path);

/// Writes the drawing table of the ground that these streets fill.
Status addBuiltUpArea(Database& database, const std::vector<Street>& streets);

}  // namespace wayloom
