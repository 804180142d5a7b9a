#pragma once

#include <filesystem>
#include <string>

#include "import/Extract.h"
#include "regions/RegionStore.h"
#include "roads/RoadGraphBuilder.h"

namespace wayloom {

/// What of an extract is not in its region.
struct ImportReport {
  ExtractGaps gaps;
  RoadFaults faults;
};

/// Makes an OpenStreetMap extract into a region `name` of the user's own `folder`, which is there
/// complete or not at all; one of that name is replaced there, but hides none of another folder.
/// The map, the place index and the roads are fitted to those of `installed`. Takes memory for the
/// whole extract. The failure is one line; what was left out is told to `report`, if there is one.
[[nodiscard]] Result<Region> importRegion(const std::filesystem::path& extract,
                                          const std::filesystem::path& folder,
                                          const std::string& name, const RegionStore& installed,
                                          const WorkProgress& progress,
                                          ImportReport* report = nullptr);

}  // namespace wayloom
