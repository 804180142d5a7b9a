#pragma once

#include <filesystem>

#include "regions/Database.h"

namespace wayloom {

/// Writes the place index of Gothenburg's streets, from the data packages below `packages` (a
/// node_modules folder).
Status addGothenburgPlaces(Database& database, const std::filesystem::path& packages);

}  // namespace wayloom
