#pragma once

#include <filesystem>
#include <optional>
#include <vector>

namespace wayloom {

/// Where region files are looked for: only `chosen` when it is given, else only the directory that
/// WAYLOOM_REGIONS names, else the user's own directory and then the program's.
std::vector<std::filesystem::path> regionDirectories(
    const std::optional<std::filesystem::path>& chosen = std::nullopt);

}  // namespace wayloom
