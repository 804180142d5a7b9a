#pragma once

#include <filesystem>
#include <optional>
#include <vector>

namespace wayloom {

/// Where a user's own regions stand: `chosen` when it is given, else the directory that
/// WAYLOOM_REGIONS names, else one in the user's data; none without a home.
std::optional<std::filesystem::path> ownRegionDirectory(
    const std::optional<std::filesystem::path>& chosen = std::nullopt);

/// Where region files are looked for: only `chosen` when it is given, else only the directory that
/// WAYLOOM_REGIONS names, else the user's own directory, if any, and then the program's.
std::vector<std::filesystem::path> regionDirectories(
    const std::optional<std::filesystem::path>& chosen = std::nullopt);

}  // namespace wayloom
