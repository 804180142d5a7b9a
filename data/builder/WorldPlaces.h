#pragma once

#include <filesystem>

#include "regions/Database.h"

namespace wayloom {

/// Writes the place index of the world: countries with their areas, divisions and settlements,
/// from the data packages below `packages` (a node_modules folder).
Status addWorldPlaces(Database& database, const std::filesystem::path& packages);

}  // namespace wayloom
