#pragma once

#include <filesystem>

#include "regions/Database.h"

namespace wayloom {

/// Writes the road network of Gothenburg, from the data packages below `packages` (a node_modules
/// folder).
Status addGothenburgRoads(Database& database, const std::filesystem::path& packages);

}  // namespace wayloom
