#pragma once

#include <filesystem>

#include "regions/Database.h"

namespace wayloom {

/// Writes the drawing tables of the world: land, coast, borders, lakes, rivers and place names,
/// from the data packages below `packages` (a node_modules folder).
Status addWorldDrawing(Database& database, const std::filesystem::path& packages);

}  // namespace wayloom
