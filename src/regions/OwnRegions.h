#pragma once

#include <filesystem>
#include <string>

#include "regions/RegionStore.h"
#include "settings/Result.h"

namespace wayloom {

// What a user does to the regions of their own, which stand in a folder apart from those that come
// with the program. Failures are lines for a person.

/// Where a region of this name is to stand in the user's own folder; refused where the name cannot
/// be a file's, or would hide an installed region of another folder.
Result<std::filesystem::path> newRegionPath(const std::filesystem::path& folder,
                                            const std::string& name, const RegionStore& installed);

/// Removes a region from the user's own folder and says which file that was; those of other
/// folders stay.
Result<std::filesystem::path> removeRegion(const std::filesystem::path& folder,
                                           const std::string& name, const RegionStore& installed);

}  // namespace wayloom
