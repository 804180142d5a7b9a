#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "regions/Database.h"
#include "regions/RegionFile.h"

namespace wayloom {

/// One usable region file.
struct Region {
  std::filesystem::path path;
  RegionInfo info;
};

/// A file that looks like a region by its name but cannot be used.
struct RefusedRegion {
  std::filesystem::path path;
  /// A sentence for the user without a full stop.
  std::string reason;
};

/// The region files installed on this machine, looked up and checked once, on construction. The
/// check opens each file and reads its head, not its content. Immutable, so any thread may read.
class RegionStore {
 public:
  /// Finds the files in `directories`, in this order and by name within each; of files of one name
  /// the first counts. Missing directories hold no regions.
  explicit RegionStore(const std::vector<std::filesystem::path>& directories);

  const std::vector<Region>& regions() const { return mRegions; }
  const std::vector<RefusedRegion>& refused() const { return mRefused; }

  /// The store as it would be if there were no such file.
  RegionStore without(const std::filesystem::path& path) const;

 private:
  std::vector<Region> mRegions;
  std::vector<RefusedRegion> mRefused;
};

/// Opens a region file for reading and checks that it is one of the version this program reads.
[[nodiscard]] Result<Database> openRegion(const std::filesystem::path& path);

/// What an opened region file says about itself; a failure when that is missing or makes no sense.
[[nodiscard]] Result<RegionInfo> readRegionInfo(Database& database);

}  // namespace wayloom
