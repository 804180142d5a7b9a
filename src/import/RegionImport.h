#pragma once

#include <filesystem>
#include <string>

#include "import/Extract.h"
#include "regions/RegionStore.h"

namespace wayloom {

/// Whether a text can name a region, and with it a file; a failure says why not.
Status checkRegionName(const std::string& name);

/// Makes an OpenStreetMap extract into the region file `folder`/`name`.region, which is there
/// complete or not at all; one of that name is replaced. The map, the place index and the roads are
/// fitted to those of `installed`. Takes memory for the whole extract. The failure is one line.
[[nodiscard]] Result<Region> importRegion(const std::filesystem::path& extract,
                                          const std::filesystem::path& folder,
                                          const std::string& name, const RegionStore& installed,
                                          const WorkProgress& progress);

}  // namespace wayloom
